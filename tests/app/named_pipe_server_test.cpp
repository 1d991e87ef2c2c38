#include "app/mirvanta_named_pipe_server.h"
#include "debug_log.h"
#include "platform/message_pipe.h"
#include "support/becomes.h"
#include "support/error_output.h"
#include "support/raw_client.h"
#include "support/scoped_variable.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <future>
#include <memory>
#include <new>
#include <stdexcept>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr auto hang = 60s;

/// A server whose pipe lies in a folder of its own.
class NamedPipeServerTest : public testing::Test
{
protected:
    void start()
    {
        server_.start({hang, hang});
        EXPECT_TRUE(becomes([this] { return send("") != std::errc::connection_refused; }));
    }

    /// Returns when the server has read it; what it leads to may come a moment later.
    std::error_code send(std::string_view message)
    {
        return platform::send_message(server_.pipe_name(), message, hang);
    }

    bool wait_for(int count)
    {
        return becomes([&] { return selections_.size() >= count; });
    }

    TempFolder folder_;
    ScopedVariable session_{"XDG_RUNTIME_DIR", folder_.host()};
    DebugLog log_;
    QStringList selections_;
    QObject main_;
    Serving<MirvantaNamedPipeServer> server_;

    NamedPipeServerTest()
    {
        QObject::connect(&server_, &MirvantaNamedPipeServer::context_menu_selected, &main_,
                         [this](int index, const QStringList& paths) {
                             selections_ += QString::number(index) + ":" + paths.join(',');
                         });
    }
};

std::string message_of(std::size_t size)
{
    std::string message = R"({"commandIndex":5,"paths":["C:\\a"]})";
    message.resize(size, ' ');
    return message;
}

}

TEST_F(NamedPipeServerTest, ServesOneClientAfterTheOther)
{
    start();
    for (const std::size_t size : {100u, 8192u, 8193u, 20'000u, 8u << 20})
        EXPECT_FALSE(send(message_of(size)));
    EXPECT_FALSE(send("garbage"));
    EXPECT_FALSE(send(R"({"paths":["C:\\b"]})"));
    EXPECT_TRUE(wait_for(6));
    EXPECT_EQ(selections_.join(' '), "5:C:\\a 5:C:\\a 5:C:\\a 5:C:\\a 5:C:\\a -1:C:\\b");
}

TEST_F(NamedPipeServerTest, TooLargeMessagesAreCountedAndDropped)
{
    start();
    EXPECT_FALSE(send(message_of((8 << 20) + 1)));
    EXPECT_FALSE(send(message_of(64 << 20)));
    const ErrorOutput output;
    EXPECT_TRUE(send(message_of(100 << 20)));
    EXPECT_EQ(output.wait(), "NamedPipeServer error: ReadFile() failed; Error=0x0000005a\n");
    EXPECT_FALSE(send(message_of(50)));
    EXPECT_TRUE(wait_for(1));
    EXPECT_EQ(DebugLog::text(), "Message received|Invalid JSON received|"
                                "Message received|Message too large: 8388609 bytes|"
                                "Message received|Message too large: 67108864 bytes|Message received|OK");
}

TEST_F(NamedPipeServerTest, BurstFromManyClientsArrivesWhole)
{
    start();
    std::vector<std::future<void>> clients;
    for (int client = 0; client < 4; ++client)
        clients.push_back(std::async(std::launch::async, [&, client] {
            for (int i = 0; i < 50; ++i)
                EXPECT_FALSE(send("{\"commandIndex\":" + std::to_string(client * 50 + i) + ",\"paths\":[\"x\"]}"));
        }));
    EXPECT_TRUE(wait_for(200));
    selections_.removeDuplicates();
    EXPECT_EQ(selections_.size(), 200);
}

TEST_F(NamedPipeServerTest, SilentClientHoldsNobodyUp)
{
    start();
    const int silent = raw_client(folder_.host(server_.pipe_name()));
    ASSERT_GE(silent, 0);
    EXPECT_FALSE(send(message_of(50)));
    close(silent);
}

TEST_F(NamedPipeServerTest, SecondServerWaitsForItsTurn)
{
    start();
    Serving<MirvantaNamedPipeServer> second;
    QObject::connect(&second, &MirvantaNamedPipeServer::context_menu_selected, &main_,
                     [this] { selections_ += "second"; });
    const ErrorOutput output;
    second.start();
    const std::string line = "NamedPipeServer error: CreateNamedPipe() failed; Error=0x00000062\n";
    EXPECT_EQ(output.wait(), line);
    EXPECT_FALSE(send(message_of(50)));
    server_.end_delivery();
    EXPECT_TRUE(becomes([&] { return !send(message_of(50)); }));
    EXPECT_TRUE(wait_for(2));
    EXPECT_EQ(selections_.join(' '), "5:C:\\a second");
    EXPECT_EQ(output.wait(), line);
}

TEST_F(NamedPipeServerTest, WhatIsTakenIsDeliveredWhenTheServerGoes)
{
    for (int round = 0; round < 20; ++round) {
        std::atomic<int> received = 0, taken = 0;
        auto server = std::make_unique<Serving<MirvantaNamedPipeServer>>();
        QObject::connect(server.get(), &MirvantaNamedPipeServer::context_menu_selected, [&] { ++received; });
        server->start();
        auto client = std::async(std::launch::async, [&] {
            std::error_code error;
            const auto end = std::chrono::steady_clock::now() + hang;
            while ((!error || taken == 0) && std::chrono::steady_clock::now() < end) {
                error = send(message_of(50));
                taken += error ? 0 : 1;
            }
            return error;
        });
        EXPECT_TRUE(becomes([&] { return taken > round; }));
        server.reset();
        const std::error_code error = client.get();
        EXPECT_TRUE(error == std::errc::connection_refused || error == std::errc::connection_reset ||
                    error == std::errc::broken_pipe)
            << error;
        EXPECT_EQ(received, taken);
        EXPECT_EQ(send("x"), std::errc::connection_refused);
    }
    start();
    EXPECT_FALSE(send(message_of(50)));
    EXPECT_TRUE(wait_for(1));
}

TEST_F(NamedPipeServerTest, MessageInProgressIsRefusedWhenTheServerGoes)
{
    auto server = std::make_unique<Serving<MirvantaNamedPipeServer>>();
    server->start();
    int client = -1;
    EXPECT_TRUE(becomes([&] { return (client = raw_client(folder_.host(server->pipe_name()))) >= 0; }));
    const std::string message = message_of(50);
    // Taken from the queue when the owner has read it.
    EXPECT_EQ(write(client, message.data(), message.size()), 50);
    EXPECT_TRUE(becomes([&] {
        int unread = -1;
        return ioctl(client, TIOCOUTQ, &unread) == 0 && unread == 0;
    }));
    server.reset();
    shutdown(client, SHUT_WR);
    char refusal = 0;
    EXPECT_EQ(read(client, &refusal, 1), 1);
    close(client);
}

TEST_F(NamedPipeServerTest, ExceptionCostsOneMessage)
{
    struct Thrower : NamedPipeServer {
        std::string pipe_name() const override { return "thrower"; }

        void message_received(const std::vector<char>& message) override
        {
            if (message.size() == 1)
                throw std::bad_alloc();
        }

        void message_too_large(std::size_t) override {}
    };

    Serving<Thrower> server;

    server.start();
    const auto send = [](std::string_view message) { return platform::send_message("thrower", message, hang); };
    EXPECT_TRUE(becomes([&] { return send("") != std::errc::connection_refused; }));
    const ErrorOutput output;
    EXPECT_EQ(send("x"), std::errc::connection_reset);
    EXPECT_EQ(output.wait(), "NamedPipeServer error: message lost; std::bad_alloc\n");
    EXPECT_FALSE(send("xx"));
}

TEST_F(NamedPipeServerTest, NoThreadIsAnError)
{
    const auto start_without_threads = [&] {
        const rlimit none{0, 0};
        if ((geteuid() == 0 && setuid(65534) != 0) || setrlimit(RLIMIT_NPROC, &none) != 0)
            _exit(1);
        try {
            server_.start();
            _exit(2);
        } catch (const std::runtime_error& error) {
            fputs(error.what(), stderr);
            _exit(0);
        }
    };
    // In a process started anew: a sanitizer lets no forked child of a process with threads start one.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(start_without_threads(), testing::ExitedWithCode(0), "^CreateThread\\(\\) failed with error 11$");
}
