#pragma once

#include "vxMaterial/json/JsonError.h"
#include "vxMaterial/json/JsonTree.h"

#include <cstdlib>
#include <memory>
#include <new>
#include <optional>
#include <rapidjson/document.h>
#include <string>
#include <string_view>
#include <vector>

/// The tree of RapidJSON behind JsonTree. Nothing outside this folder uses RapidJSON.
namespace vxjson::detail {

/// An allocator that checks the result of malloc. RapidJSON does not check it.
struct ThrowingAllocator
{
    static void* Malloc(std::size_t size) { return size == 0 ? nullptr : checked(std::malloc(size)); }
    static void* Realloc(void* memory, std::size_t /*oldSize*/, std::size_t size)
    {
        if (size > 0)
            return checked(std::realloc(memory, size));
        std::free(memory);
        return nullptr;
    }
    static void Free(void* memory) { std::free(memory); }

private:
    static void* checked(void* memory) { return memory != nullptr ? memory : throw std::bad_alloc(); }
};

using Encoding = rapidjson::UTF8<>;
using Pool = rapidjson::MemoryPoolAllocator<ThrowingAllocator>;
using TreeValue = rapidjson::GenericValue<Encoding, Pool>;
using Document = rapidjson::GenericDocument<Encoding, Pool, ThrowingAllocator>;

/// A parsed text. It is parsed in place: the texts of the tree are parts of a copy of the JSON text, at the same
/// positions, so that the place of a text is known.
struct RapidTree
{
    std::unique_ptr<char[]> buffer; ///< the copy. NOLINT(*-avoid-c-arrays): a std::string would be cleared first
    Document document;              ///< null if there is an error
    std::optional<JsonError> error;
    std::vector<std::string> repeatedMembers;
};

/// Reads a text into a tree, which is empty. See JsonTree::read.
void readTree(std::string_view text, JsonDialect dialect, RapidTree& tree);

} // namespace vxjson::detail
