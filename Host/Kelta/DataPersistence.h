#pragma once

#include "Kelta/ClassRegistration.h"
#include "Kelta/KeltaExport.h"

#include <cstddef>

class QString;

namespace Kelta {

class FileWriter;
class XMLFileReader;

/// What can be written into the host's XML files and read back.
class KELTA_EXPORT DataPersistence : public RootClass
{
    KELTA_ABSTRACT_CLASS;

public:
    /// The bytes that the object itself takes, an estimate for the user.
    virtual std::size_t get_memory_usage() const;
    /// Writes the object inside the element that the caller has begun; nothing here.
    virtual void save(FileWriter& writer) const;
    /// Reads what save wrote from the element at which the reader stands, which it may leave; nothing here.
    virtual void load(XMLFileReader& reader);
    /// Writes a file of the object alone. False, with the reason in the message log, when it cannot be written; an
    /// earlier file then stays.
    virtual bool save_to_file(const QString& path) const;
    /// Reads what save_to_file wrote of an object of the same class. False, with the reason in the message log, when it
    /// cannot be read: a file that is cut off or of something else changes nothing.
    virtual bool load_from_file(const QString& path);
};

} // namespace Kelta
