#include "platform/message_pipe.h"
#include "support/raw_client.h"
#include "support/scoped_variable.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <future>
#include <initializer_list>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using namespace std::chrono_literals;
using platform::create_message_pipe;
using platform::MessagePipe;
using platform::PipeBounds;
using platform::send_message;

namespace {

constexpr auto patience = 60s;

/// In a folder of its own, which stands for the session's.
class MessagePipeTest : public testing::Test
{
protected:
    MessagePipeTest() { chmod(folder_.host().c_str(), 0755); }

    /// Null, with `error_`, when it can't be opened; nobody else may own it.
    std::unique_ptr<MessagePipe> create(const PipeBounds& bounds = {patience, patience})
    {
        auto pipe = create_message_pipe("pipe", bounds);
        error_ = pipe->open([] { FAIL() << "the name has an owner"; });
        return error_ ? nullptr : std::move(pipe);
    }

    /// What `open` comes to, once it waits for the name's owner.
    static std::future<std::error_code> opening(MessagePipe& pipe)
    {
        std::promise<void> waits;
        auto opened = std::async(std::launch::async, [&] { return pipe.open([&] { waits.set_value(); }); });
        waits.get_future().wait();
        return opened;
    }

    static std::future<std::error_code> sending(std::string message)
    {
        return std::async(std::launch::async, [=] { return send_message("pipe", message, patience); });
    }

    /// The next message, or its size, and what is wrong with it; or the pipe's error.
    static std::string receive(MessagePipe& pipe)
    {
        platform::PipeMessage message;
        if (const std::error_code error = pipe.receive(message))
            return error.message();
        const std::string text = message.is_too_large() ? std::to_string(message.size)
                                                        : std::string(message.bytes.begin(), message.bytes.end());
        return message.error ? text + ' ' + message.error.message() : text;
    }

    /// What the pipe receives when "x" is sent.
    static std::string exchange(MessagePipe& pipe)
    {
        const auto sent = sending("x");
        const std::string received = receive(pipe);
        pipe.disconnect();
        return received;
    }

    /// The same with a new pipe, or why there is none.
    std::string exchange()
    {
        const auto pipe = create();
        return pipe ? exchange(*pipe) : error_.message();
    }

    int connect_client(std::string_view message = {}) const
    {
        const int client = raw_client(folder_.host("pipe"));
        EXPECT_EQ(write(client, message.data(), message.size()), static_cast<ssize_t>(message.size()));
        return client;
    }

    TempFolder folder_;
    ScopedVariable session_{"XDG_RUNTIME_DIR", folder_.host()};
    std::error_code error_;
};

}

TEST_F(MessagePipeTest, MessagesArriveWhole)
{
    constexpr std::size_t largest = 100'000, longest = 300'000;
    const auto pipe = create({patience, patience, 16, largest, longest});
    for (const std::size_t size : {std::size_t(0), std::size_t(7), largest, largest + 1, longest, longest + 1}) {
        const std::string text(size, 'x');
        auto sent = sending(text);
        const std::string expected = size <= largest ? text : std::to_string(size);
        EXPECT_EQ(receive(*pipe), size <= longest ? expected : expected + " Message too long");
        pipe->disconnect();
        EXPECT_FALSE(sent.get());
    }
}

TEST_F(MessagePipeTest, ClientsAreServedAtTheSameTime)
{
    const auto pipe = create();
    const int silent = connect_client(), first = connect_client("ab"), second = connect_client("1");
    EXPECT_EQ(exchange(*pipe), "x");
    EXPECT_EQ(write(second, "2", 1), 1);
    close(second);
    EXPECT_EQ(receive(*pipe), "12");
    EXPECT_EQ(write(first, "c", 1), 1);
    EXPECT_EQ(exchange(*pipe), "x");
    close(first);
    EXPECT_EQ(receive(*pipe), "abc");
    close(silent);
    EXPECT_EQ(receive(*pipe), "");
}

TEST_F(MessagePipeTest, ClientsBeyondTheBoundWait)
{
    const auto pipe = create({50ms, patience, 1});
    const int silent = connect_client("a"), ready = connect_client("x");
    shutdown(ready, SHUT_WR);
    EXPECT_EQ(receive(*pipe), "a Connection timed out");
    EXPECT_EQ(receive(*pipe), "x");
    close(silent);
    close(ready);
}

TEST_F(MessagePipeTest, OwnersTimeOut)
{
    const auto pipe = create();
    EXPECT_EQ(send_message("pipe", std::string(8 << 20, 'x'), 50ms), std::errc::timed_out);
    EXPECT_EQ(send_message("pipe", "", 50ms), std::errc::timed_out);
}

TEST_F(MessagePipeTest, MessageHasATimeInAll)
{
    const auto pipe = create({patience, 100ms});
    const int client = connect_client();
    std::atomic<bool> is_over = false;
    auto drips = std::async(std::launch::async, [&] {
        for (const auto end = std::chrono::steady_clock::now() + 30s;
             !is_over && std::chrono::steady_clock::now() < end; std::this_thread::sleep_for(5ms))
            send(client, "x", 1, MSG_NOSIGNAL);
    });
    EXPECT_TRUE(receive(*pipe).ends_with(" Connection timed out"));
    is_over = true;
    drips.get();
    close(client);
}

TEST_F(MessagePipeTest, RefusedOrDroppedMessageIsAnErrorOfTheSender)
{
    const auto pipe = create({patience, patience, 16, 8, 16});
    auto refused = sending("x");
    EXPECT_EQ(receive(*pipe), "x");
    pipe->refuse();
    EXPECT_EQ(refused.get(), std::errc::connection_reset);

    auto dropped = sending(std::string(8 << 20, 'x'));
    EXPECT_TRUE(receive(*pipe).ends_with(" Message too long"));
    pipe->disconnect();
    const std::error_code error = dropped.get();
    EXPECT_TRUE(error == std::errc::broken_pipe || error == std::errc::connection_reset) << error;
}

TEST_F(MessagePipeTest, ClosedPipeGivesItsNameBack)
{
    const auto first = create();
    const int started = connect_client("a");
    EXPECT_EQ(exchange(*first), "x");
    auto received = std::async(std::launch::async, [&] { return receive(*first); });
    first->close();
    EXPECT_EQ(received.get(), "Operation canceled");
    char refusal = 0;
    EXPECT_EQ(read(started, &refusal, 1), 1);
    close(started);
    EXPECT_FALSE(platform::is_pipe_owned("pipe"));
    EXPECT_EQ(send_message("pipe", "x", patience), std::errc::connection_refused);
    EXPECT_EQ(exchange(), "x");
    EXPECT_EQ(first->open([] {}), std::errc::operation_canceled);
}

TEST_F(MessagePipeTest, ClientsThatWaitAtTheCloseAreNotTaken)
{
    auto pipe = create();
    const int client = connect_client("x");
    pipe->close();
    EXPECT_EQ(receive(*pipe), "Operation canceled");
    pipe.reset();
    char nothing = 0;
    EXPECT_EQ(read(client, &nothing, 1), -1);
    close(client);
}

TEST_F(MessagePipeTest, NamePassesFromOneToTheNext)
{
    auto first = create();
    const auto second = create_message_pipe("pipe"), third = create_message_pipe("pipe");
    auto second_opened = opening(*second), third_opened = opening(*third);
    EXPECT_EQ(exchange(*first), "x");
    third->close();
    std::filesystem::remove(folder_.host("pipe.lock"));
    first.reset();
    EXPECT_FALSE(second_opened.get());
    EXPECT_TRUE(platform::is_pipe_owned("pipe"));
    EXPECT_EQ(exchange(*second), "x");
    second->close();
    EXPECT_EQ(third_opened.get(), std::errc::operation_canceled);
    EXPECT_FALSE(platform::is_pipe_owned("pipe"));
}

#ifndef __SANITIZE_ADDRESS__ // the sanitizer looks at memory through descriptors of its own
TEST_F(MessagePipeTest, FullTableOfFilesKeepsTheClientsWaiting)
{
    const auto pipe = create();
    const int client = connect_client("x");
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none{0, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    auto received = std::async(std::launch::async, [&] { return receive(*pipe); });
    EXPECT_EQ(received.wait_for(50ms), std::future_status::timeout);
    setrlimit(RLIMIT_NOFILE, &before);
    close(client);
    EXPECT_EQ(received.get(), "x");
}
#endif

TEST_F(MessagePipeTest, NameHasOneOwner)
{
    EXPECT_FALSE(platform::is_pipe_owned("pipe"));
    EXPECT_EQ(send_message("pipe", "x", patience), std::errc::connection_refused);
    auto first = create();
    ASSERT_TRUE(first);
    EXPECT_TRUE(platform::is_pipe_owned("pipe"));
    EXPECT_FALSE(create_message_pipe("other")->open([] {}));
    EXPECT_EQ(create_message_pipe("../pipe")->open([] {}), std::errc::invalid_argument);

    // A lock that was cleared away can be had again, but not the name.
    std::filesystem::remove(folder_.host("pipe.lock"));
    EXPECT_FALSE(create());
    EXPECT_EQ(error_, std::errc::address_in_use);
    EXPECT_EQ(receive(*first), "") << "to see who was there";

    // Its end leaves the socket behind, as a crash does.
    first.reset();
    EXPECT_TRUE(std::filesystem::exists(folder_.host("pipe")));
    EXPECT_EQ(send_message("pipe", "x", patience), std::errc::connection_refused);
    EXPECT_EQ(exchange(), "x");

    auto start = platform::try_lock_start("pipe");
    EXPECT_TRUE(start);
    EXPECT_FALSE(platform::try_lock_start("pipe"));
    start.reset();
    EXPECT_TRUE(platform::try_lock_start("pipe"));
}

TEST_F(MessagePipeTest, StartedProgramsInheritNothing)
{
    const auto pipe = create();
    const int client = connect_client("x");
    shutdown(client, SHUT_WR);
    EXPECT_EQ(receive(*pipe), "x");
    const auto start = platform::try_lock_start("pipe");
    int sockets = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        const int descriptor = std::stoi(entry.path().filename());
        std::error_code gone;
        const std::string target = std::filesystem::read_symlink(entry.path(), gone).string();
        if (!target.starts_with("socket:") && !target.starts_with(folder_.host()))
            continue;
        ++sockets;
        EXPECT_NE(fcntl(descriptor, F_GETFD) & FD_CLOEXEC, 0) << target;
    }
    EXPECT_GE(sockets, 5);
    close(client);
}

TEST_F(MessagePipeTest, PlaceIsTheUsersOwn)
{
    const std::string own = "tmp/vellumark-" + std::to_string(geteuid());
    const std::string long_name = "long/" + std::string(200, 'd');
    for (const std::string& name : {std::string("tmp"), long_name, std::string("open"), std::string("real")})
        folder_.make_folder(name);
    chmod(folder_.host("open").c_str(), 0777);
    chmod(folder_.host("real").c_str(), 0700);
    const ScopedVariable temporary("TMPDIR", folder_.host("tmp"));

    for (const auto& [session, expected] : std::initializer_list<std::pair<std::optional<std::string>, std::string>>{
             {folder_.host(long_name), long_name},
             {folder_.host("open"), own},
             {folder_.host("gone"), own},
             {"real", own},
             {std::nullopt, own}}) {
        const ScopedVariable variable("XDG_RUNTIME_DIR", session);
        EXPECT_EQ(exchange(), "x") << session.value_or("none");

        struct stat status {
        };

        ASSERT_EQ(lstat(folder_.host(expected + "/pipe").c_str(), &status), 0) << session.value_or("none");
        EXPECT_EQ(status.st_mode, S_IFSOCK | 0600);
        std::filesystem::remove(folder_.host(expected + "/pipe"));
    }

    const ScopedVariable none("XDG_RUNTIME_DIR", std::nullopt);
    chmod(folder_.host(own).c_str(), 0750);
    EXPECT_EQ(exchange(), "Permission denied");
    EXPECT_EQ(send_message("pipe", "x", patience), std::errc::permission_denied);
    std::filesystem::remove_all(folder_.host(own));
    folder_.make_link(own, folder_.host("real"));
    EXPECT_EQ(exchange(), "Not a directory");
}

TEST_F(MessagePipeTest, OtherUsersAreDropped)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can become another user";
    const auto pipe = create();
    chmod(folder_.host("pipe").c_str(), 0666);
    const pid_t child = fork();
    if (child == 0) {
        if (setuid(65534) != 0)
            _exit(2);
        const int client = raw_client(folder_.host("pipe"));
        // Refused when nothing can be read but the end.
        char nothing = 0;
        _exit(client >= 0 && read(client, &nothing, 1) == 0 ? 0 : 1);
    }
    auto received = std::async(std::launch::async, [&] { return receive(*pipe); });
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    auto sent = sending("own");
    EXPECT_EQ(received.get(), "own");
    pipe->disconnect();
    EXPECT_FALSE(sent.get());
}
