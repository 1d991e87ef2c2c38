#pragma once

#include "support/temp_folder.h"

#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

/// Keeps what the process writes to standard error while it lives.
class ErrorOutput
{
public:
    ErrorOutput()
    {
        const int file = open(folder_.host("log").c_str(), O_CREAT | O_WRONLY | O_APPEND | O_CLOEXEC, 0600);
        dup2(file, STDERR_FILENO);
        close(file);
    }

    ~ErrorOutput()
    {
        dup2(before_, STDERR_FILENO);
        close(before_);
    }

    ErrorOutput(const ErrorOutput&) = delete;
    ErrorOutput& operator=(const ErrorOutput&) = delete;

    /// All of it, once there is something; empty after a minute without.
    std::string wait() const
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(1);
        std::string text;
        while (text.empty() && std::chrono::steady_clock::now() < end) {
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
            std::ostringstream content;
            content << std::ifstream(folder_.host("log")).rdbuf();
            text = content.str();
        }
        return text;
    }

private:
    TempFolder folder_;
    int before_ = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3);
};
