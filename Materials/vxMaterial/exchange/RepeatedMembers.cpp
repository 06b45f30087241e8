#include "JsonScanner.h"

#include "vxMaterial/exchange/DocumentCheck.h"

#include <set>
#include <utility>

namespace vxCAE {

namespace {

using detail::TokenKind;

/// An array or object that the walk over a text is in.
struct Level
{
    bool isObject = false;
    std::string path;
    std::size_t index = 0;      ///< of the element, in an array
    std::string key;            ///< of the member, in an object
    bool expectsKey = true;     ///< whether the next text is a key
    std::set<std::string> keys; ///< of the members so far

    std::string pathOfElement() const { return isObject ? path + "." + key : path + "[" + std::to_string(index) + "]"; }
};

/// Takes a text in an object for the key of its next member, and reports it when it was there before.
void takeKey(Level& level, std::string_view text, std::vector<Finding>& findings)
{
    level.key = text.substr(1, text.size() - 2);
    level.expectsKey = false;
    if (!level.keys.insert(level.key).second)
        findings.push_back({level.pathOfElement(), "stands twice or more; readers take the last"});
}

} // namespace

std::vector<Finding> findRepeatedMembers(std::string_view text)
{
    std::vector<Finding> findings;
    std::vector<Level> levels(1);
    detail::JsonScanner scanner(text);
    while (const auto token = scanner.next()) {
        const bool isObject = token->kind == TokenKind::BeginObject;
        Level& level = levels.back();
        if (isObject || token->kind == TokenKind::BeginArray) {
            Level inner;
            inner.isObject = isObject;
            inner.path = levels.size() == 1 ? "$" : level.pathOfElement();
            levels.push_back(std::move(inner));
        } else if (token->kind == TokenKind::EndObject || token->kind == TokenKind::EndArray) {
            if (levels.size() > 1)
                levels.pop_back();
        } else if (token->kind == TokenKind::Comma) {
            ++level.index;
            level.expectsKey = true;
        } else if (token->kind == TokenKind::Text && level.isObject && level.expectsKey) {
            takeKey(level, token->text, findings);
        }
    }
    return findings;
}

} // namespace vxCAE
