#pragma once

#include "Kelta/ClassRegistration.h"
#include "Kelta/KeltaExport.h"

#include <cstddef>

class QString;

namespace Kelta {

class FileWriter;
class XMLFileReader;

/// An object that knows its size in memory and can be written into its own XML file.
///
/// The XML operations are hooks for modules. The application keeps projects in JSON files, so the host classes
/// write nothing.
class KELTA_EXPORT DataPersistence : public RootClass
{
    KELTA_ABSTRACT_CLASS;

public:
    /// Returns the bytes that the object and everything it owns take, an estimate for the user. Here this is the size
    /// of its registered class; derived classes add the sizes of their members' content.
    virtual std::size_t get_memory_usage() const;
    /// Writes the content of the object inside the element that the caller has begun. Writes nothing here.
    virtual void save(FileWriter& writer) const;
    /// Reads the output of save, inside the element that the reader has just entered. Reads nothing here.
    virtual void load(XMLFileReader& reader);
    /// Writes a file that contains only this object, by save. Returns false, with the reason in the message log, if
    /// the file cannot be written; an earlier file is then kept.
    virtual bool save_to_file(const QString& path) const;
    /// Reads a file that save_to_file wrote for an object of the same class. Returns false, with the reason in the
    /// message log, if it cannot be read. A file that is truncated, or of another class, changes nothing.
    virtual bool load_from_file(const QString& path);
};

} // namespace Kelta
