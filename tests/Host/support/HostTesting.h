#pragma once

#include "Kelta/MessageLog.h"

#include <QString>
#include <QStringList>

#include <string>
#include <sys/resource.h>
#include <vector>

namespace vxtest {

/// Collects the reports to the message log during its lifetime.
class Reports
{
public:
    Reports();
    Reports(const Reports&) = delete;
    Reports& operator=(const Reports&) = delete;
    ~Reports();

    int errors() const { return count(Kelta::LogMessage::Severity::Error); }
    int warnings() const { return count(Kelta::LogMessage::Severity::Warning); }
    /// Returns all texts, one on each line.
    std::string text() const;

private:
    int count(Kelta::LogMessage::Severity severity) const;

    std::vector<Kelta::LogMessage> m_messages;
    QMetaObject::Connection m_connection;
};

/// Limits each file of this process to `bytes` during its lifetime, to simulate a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes);
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk();

private:
    rlimit m_before = {};
    void (*m_handlerBefore)(int);
};

void writeFile(const QString& path, const char* text);
std::string readFile(const QString& path);

} // namespace vxtest
