#include "application/TranslationCheck.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstddef>

namespace Gui {

namespace {

/// The first bytes of each translation file.
constexpr std::array<uchar, 16> magic{0x3C, 0xB8, 0x64, 0x18, 0xCA, 0xEF, 0x9C, 0x95,
                                      0xCD, 0x21, 0x1C, 0xBF, 0x60, 0xA1, 0xBD, 0xDD};

enum Section : quint8
{
    Contexts = 0x2F,
    Hashes = 0x42,
    Messages = 0x69,
    Dependencies = 0x96,
};

/// The parts of a message. Other numbers end it.
enum Part : quint8
{
    Translation = 3,
    Obsolete = 5,
    SourceText = 6,
    Context = 7,
    Comment = 8,
};

/// The length of a translation that is missing.
constexpr quint32 lengthOfNoText = 0xFFFFFFFF;

/// A part of the file, from which numbers in network order are read.
class Bytes
{
public:
    Bytes() = default;
    Bytes(const uchar* data, std::size_t size) : m_data(data), m_size(size) {}

    std::size_t size() const { return m_size; }

    /// Returns the bytes from a position on; none if the position is after the end.
    Bytes from(std::size_t position) const
    {
        const std::size_t begin = std::min(position, m_size);
        return {m_data + begin, m_size - begin};
    }

    /// Moves a number from the front of the bytes to `number`. Returns false if there are too few bytes.
    template <class Number>
    bool take(Number& number)
    {
        if (m_size < sizeof(Number))
            return false;
        number = qFromBigEndian<Number>(m_data);
        *this = from(sizeof(Number));
        return true;
    }

    /// Moves `size` bytes from the front to `taken`. Returns false if there are too few bytes.
    bool take(std::size_t size, Bytes& taken)
    {
        if (m_size < size)
            return false;
        taken = {m_data, size};
        *this = from(size);
        return true;
    }

    bool beginsWithMagic() const { return m_size >= magic.size() && std::equal(magic.begin(), magic.end(), m_data); }

private:
    const uchar* m_data = nullptr;
    std::size_t m_size = 0;
};

bool hasText(quint8 part)
{
    return part == Translation || part == SourceText || part == Context || part == Comment;
}

bool isSoundMessage(Bytes message)
{
    quint8 part = 0;
    quint32 number = 0;
    Bytes text;
    while (message.take(part)) {
        if (!hasText(part) && part != Obsolete)
            return true;
        if (!message.take(number))
            return false;
        // QTranslator takes this length as -1, and its last byte as the end of the message.
        if (part == Translation && number == lengthOfNoText)
            return true;
        if (hasText(part) && !message.take(number, text))
            return false;
    }
    return true;
}

/// Checks that each position in `hashes`, pairs of a hash and a position, is that of a sound message.
bool areSoundMessages(Bytes hashes, const Bytes& messages)
{
    quint32 hash = 0;
    quint32 position = 0;
    while (hashes.take(hash))
        if (!hashes.take(position) || position >= messages.size() || !isSoundMessage(messages.from(position)))
            return false;
    return hashes.size() == 0;
}

/// Checks a list of names, each after its length, which ends with the length 0.
bool isSoundNameList(Bytes names)
{
    quint8 length = 0;
    Bytes name;
    while (names.take(length)) {
        if (length == 0)
            return true;
        if (!names.take(length, name))
            return false;
    }
    return false;
}

/// Checks a table of positions of lists of names. Positions count in units of two bytes; 0 means no list.
bool areSoundContexts(Bytes contexts)
{
    quint16 count = 0;
    Bytes table;
    if (!contexts.take(count) || count == 0 || !contexts.take(std::size_t{count} * sizeof(quint16), table))
        return false;
    quint16 position = 0;
    while (table.take(position))
        if (position != 0 && !isSoundNameList(contexts.from(std::size_t{position} * 2)))
            return false;
    return true;
}

} // namespace

bool isSoundTranslation(const QByteArray& content)
{
    Bytes rest(reinterpret_cast<const uchar*>(content.constData()), static_cast<std::size_t>(content.size()));
    if (!rest.beginsWithMagic())
        return false;
    rest = rest.from(magic.size());
    Bytes hashes;
    Bytes messages;
    quint8 section = 0;
    quint32 length = 0;
    while (rest.take(section)) {
        Bytes data;
        if (!rest.take(length) || !rest.take(length, data) || section == Dependencies)
            return false;
        if (section == 0 || length == 0) // QTranslator stops here
            break;
        if (section == Contexts && !areSoundContexts(data))
            return false;
        if (section == Hashes)
            hashes = data;
        if (section == Messages)
            messages = data;
    }
    return areSoundMessages(hashes, messages);
}

} // namespace Gui
