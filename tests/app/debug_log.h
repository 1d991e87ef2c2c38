#pragma once

#include <QStringList>

#include <mutex>
#include <string>

/// Keeps what goes to the debug log from any thread while it lives; one at a time.
class DebugLog
{
public:
    DebugLog() : before_(qInstallMessageHandler(&DebugLog::keep))
    {
        const std::lock_guard lock(mutex());
        lines().clear();
    }

    ~DebugLog() { qInstallMessageHandler(before_); }

    DebugLog(const DebugLog&) = delete;
    DebugLog& operator=(const DebugLog&) = delete;

    /// All lines so far, with "|" between them.
    static std::string text()
    {
        const std::lock_guard lock(mutex());
        return lines().join('|').toStdString();
    }

private:
    static void keep(QtMsgType, const QMessageLogContext&, const QString& line)
    {
        const std::lock_guard lock(mutex());
        lines() += line;
    }

    static std::mutex& mutex()
    {
        static std::mutex instance;
        return instance;
    }

    static QStringList& lines()
    {
        static QStringList kept;
        return kept;
    }

    QtMessageHandler before_;
};
