#include "HostTesting.h"

#include <QFile>
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>

namespace vxtest {

Reports::Reports()
    : m_connection(QObject::connect(&Kelta::MessageLog::instance(), &Kelta::MessageLog::reported,
                                    [this](const Kelta::LogMessage& message) { m_messages.push_back(message); }))
{}

Reports::~Reports()
{
    QObject::disconnect(m_connection);
}

std::string Reports::text() const
{
    std::string text;
    for (const Kelta::LogMessage& message : m_messages)
        text += message.text.toStdString() + "\n";
    return text;
}

int Reports::count(Kelta::LogMessage::Severity severity) const
{
    return static_cast<int>(
        std::count_if(m_messages.begin(), m_messages.end(),
                      [severity](const Kelta::LogMessage& message) { return message.severity == severity; }));
}

FullDisk::FullDisk(rlim_t bytes) : m_handlerBefore(std::signal(SIGXFSZ, SIG_IGN))
{
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &m_before), 0);
    rlimit limit = m_before;
    limit.rlim_cur = bytes;
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
}

FullDisk::~FullDisk()
{
    setrlimit(RLIMIT_FSIZE, &m_before);
    static_cast<void>(std::signal(SIGXFSZ, m_handlerBefore));
}

void writeFile(const QString& path, const char* text)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(text);
}

std::string readFile(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll().toStdString();
}

} // namespace vxtest
