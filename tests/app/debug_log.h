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
        const std::lock_guard lock(mutex_);
        lines_.clear();
    }

    ~DebugLog() { qInstallMessageHandler(before_); }

    DebugLog(const DebugLog&) = delete;
    DebugLog& operator=(const DebugLog&) = delete;

    /// All lines so far, with "|" between them.
    static std::string text()
    {
        const std::lock_guard lock(mutex_);
        return lines_.join('|').toStdString();
    }

private:
    static void keep(QtMsgType, const QMessageLogContext&, const QString& line)
    {
        const std::lock_guard lock(mutex_);
        lines_ += line;
    }

    static inline std::mutex mutex_;
    static inline QStringList lines_;
    QtMessageHandler before_;
};
