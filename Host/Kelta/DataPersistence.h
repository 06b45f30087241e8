#pragma once

#include "Kelta/ClassRegistration.h"
#include "Kelta/KeltaExport.h"

#include <cstddef>

class QString;

namespace Kelta {

class FileWriter;
class XMLFileReader;

/// An object that knows its size in memory and can be written into an XML file of its own.
///
/// The XML operations are hooks for modules: projects are kept in JSON files by the application, so the host classes
/// write nothing.
class KELTA_EXPORT DataPersistence : public RootClass
{
    KELTA_ABSTRACT_CLASS;

public:
    /// The bytes that the object takes with all that it owns, an estimate for the user. Here the size of its registered
    /// class; classes add what their members hold.
    virtual std::size_t get_memory_usage() const;
    /// Writes the content of the object inside the element that the caller has begun. Here nothing.
    virtual void save(FileWriter& writer) const;
    /// Reads what save wrote, inside the element that the reader has just entered. Here nothing.
    virtual void load(XMLFileReader& reader);
    /// Writes a file of the object alone, as save says. False, with the reason in the message log, if it cannot be
    /// written; an earlier file then stays.
    virtual bool save_to_file(const QString& path) const;
    /// Reads what save_to_file wrote of an object of the same class. False, with the reason in the message log, if it
    /// cannot be read; a file that is cut off, or of another class, changes nothing.
    virtual bool load_from_file(const QString& path);
};

} // namespace Kelta
