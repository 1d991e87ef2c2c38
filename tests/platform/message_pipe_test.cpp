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
using platform::send_message;

namespace {

constexpr auto patience = 60s;

/// In a folder of its own, which stands for the session's.
class MessagePipeTest : public testing::Test
{
protected:
    MessagePipeTest() { chmod(folder_.host().c_str(), 0755); }

    std::unique_ptr<platform::MessagePipe> create(std::chrono::milliseconds silence = patience,
                                                  std::chrono::milliseconds message = patience)
    {
        return create_message_pipe("pipe", {silence, message}, error_);
    }

    static std::future<std::error_code> sending(std::string message)
    {
        return std::async(std::launch::async, [=] { return send_message("pipe", message, patience); });
    }

    /// What is read with a buffer of `size` bytes: the pieces' lengths, and how it ended.
    std::string pieces(platform::MessagePipe& pipe, std::size_t size)
    {
        std::string text;
        std::vector<char> buffer(size);
        for (;;) {
            const platform::PipeRead read = pipe.read(buffer);
            text += std::to_string(read.count);
            if (read.error || read.end_of_message)
                return text + (read.error ? " " + read.error.message() : " end");
            text += ' ';
        }
    }

    /// What a new pipe reads when "x" is sent, or why there is none.
    std::string exchange()
    {
        const auto pipe = create();
        if (!pipe)
            return error_.message();
        const auto sent = sending("x");
        EXPECT_FALSE(pipe->connect());
        const std::string read = pieces(*pipe, 8);
        pipe->disconnect();
        return read;
    }

    int connect_client() const { return raw_client(folder_.host("pipe")); }

    TempFolder folder_;
    ScopedVariable session_{"XDG_RUNTIME_DIR", folder_.host()};
    std::error_code error_;
};

}

TEST_F(MessagePipeTest, ReadsUpToTheEndOfEachMessage)
{
    const auto pipe = create();
    for (const auto& [size, expected] : std::initializer_list<std::pair<std::size_t, const char*>>{
             {0, "0 end"}, {7, "7 end"}, {8, "8 end"}, {9, "8 1 end"}, {16, "8 8 end"}}) {
        auto sent = sending(std::string(size, 'x'));
        ASSERT_FALSE(pipe->connect());
        EXPECT_EQ(pieces(*pipe, 8), expected);
        pipe->disconnect();
        EXPECT_FALSE(sent.get());
    }
}

TEST_F(MessagePipeTest, MessageInDripsIsOnePiece)
{
    const auto pipe = create();
    const int client = connect_client();
    ASSERT_FALSE(pipe->connect());
    auto text = std::async(std::launch::async, [&] { return pieces(*pipe, 4); });
    for (int i = 0; i < 6; ++i) {
        std::this_thread::sleep_for(5ms);
        ASSERT_EQ(write(client, "x", 1), 1);
    }
    close(client);
    EXPECT_EQ(text.get(), "4 2 end");
}

TEST_F(MessagePipeTest, SilentClientsAndOwnersTimeOut)
{
    const auto pipe = create(50ms);
    for (const std::string_view start : {"", "ab", "abcd"}) {
        const int client = connect_client();
        ASSERT_EQ(write(client, start.data(), start.size()), static_cast<ssize_t>(start.size()));
        ASSERT_FALSE(pipe->connect());
        EXPECT_EQ(pieces(*pipe, 4), std::to_string(start.size()) + " Connection timed out");
        pipe->disconnect();
        close(client);
    }
    EXPECT_EQ(send_message("pipe", std::string(8 << 20, 'x'), 50ms), std::errc::timed_out);
    EXPECT_EQ(send_message("pipe", "", 50ms), std::errc::timed_out);
}

TEST_F(MessagePipeTest, MessageHasATimeInAll)
{
    const auto pipe = create(patience, 100ms);
    const int client = connect_client();
    ASSERT_FALSE(pipe->connect());
    std::atomic<bool> is_over = false;
    auto drips = std::async(std::launch::async, [&] {
        for (const auto end = std::chrono::steady_clock::now() + 30s;
             !is_over && std::chrono::steady_clock::now() < end; std::this_thread::sleep_for(5ms))
            send(client, "x", 1, MSG_NOSIGNAL);
    });
    EXPECT_TRUE(pieces(*pipe, 1 << 20).ends_with(" Connection timed out"));
    is_over = true;
    drips.get();
    close(client);
}

TEST_F(MessagePipeTest, RefusedOrDroppedMessageIsAnErrorOfTheSender)
{
    const auto pipe = create();
    auto refused = sending("x");
    ASSERT_FALSE(pipe->connect());
    EXPECT_EQ(pieces(*pipe, 8), "1 end");
    pipe->refuse();
    EXPECT_EQ(refused.get(), std::errc::connection_reset);

    auto dropped = sending(std::string(8 << 20, 'x'));
    ASSERT_FALSE(pipe->connect());
    pipe->disconnect();
    const std::error_code error = dropped.get();
    EXPECT_TRUE(error == std::errc::broken_pipe || error == std::errc::connection_reset) << error;
}

TEST_F(MessagePipeTest, ClosedPipeGivesItsNameBack)
{
    const auto first = create();
    auto connected = std::async(std::launch::async, [&] { return first->connect(); });
    std::this_thread::sleep_for(20ms);
    first->close();
    EXPECT_EQ(connected.get(), std::errc::operation_canceled);
    EXPECT_FALSE(platform::is_pipe_owned("pipe"));
    EXPECT_EQ(send_message("pipe", "x", patience), std::errc::connection_refused);
    EXPECT_EQ(exchange(), "1 end");
}

TEST_F(MessagePipeTest, ClientsThatWaitAtTheCloseAreNotTaken)
{
    auto pipe = create();
    auto sent = sending("x");
    std::this_thread::sleep_for(20ms);
    pipe->close();
    EXPECT_EQ(pipe->connect(), std::errc::operation_canceled);
    pipe.reset();
    EXPECT_TRUE(sent.get());
}

#ifndef __SANITIZE_ADDRESS__ // the sanitizer looks at memory through descriptors of its own
TEST_F(MessagePipeTest, FullTableOfFilesKeepsTheClientsWaiting)
{
    const auto pipe = create();
    const int client = connect_client();
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none{0, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    auto connected = std::async(std::launch::async, [&] { return pipe->connect(); });
    EXPECT_EQ(connected.wait_for(50ms), std::future_status::timeout);
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_FALSE(connected.get());
    close(client);
}
#endif

TEST_F(MessagePipeTest, NameHasOneOwner)
{
    EXPECT_FALSE(platform::is_pipe_owned("pipe"));
    EXPECT_EQ(send_message("pipe", "x", patience), std::errc::connection_refused);
    auto first = create();
    ASSERT_TRUE(first);
    EXPECT_TRUE(platform::is_pipe_owned("pipe"));
    EXPECT_FALSE(create());
    EXPECT_EQ(error_, std::errc::address_in_use);
    EXPECT_TRUE(create_message_pipe("other", {}, error_));

    // A lock that was cleared away can be had again, but not the name.
    std::filesystem::remove(folder_.host("pipe.lock"));
    EXPECT_FALSE(create());
    EXPECT_EQ(error_, std::errc::address_in_use);
    EXPECT_FALSE(first->connect()); // to see who was there
    EXPECT_EQ(pieces(*first, 8), "0 end");

    // Its end leaves the socket behind, as a crash does.
    first.reset();
    EXPECT_TRUE(std::filesystem::exists(folder_.host("pipe")));
    EXPECT_EQ(send_message("pipe", "x", patience), std::errc::connection_refused);
    const auto second = create();
    ASSERT_TRUE(second) << error_;
    const int client = connect_client();
    EXPECT_FALSE(second->connect());
    close(client);

    auto start = platform::try_lock_start("pipe");
    EXPECT_TRUE(start);
    EXPECT_FALSE(platform::try_lock_start("pipe"));
    start.reset();
    EXPECT_TRUE(platform::try_lock_start("pipe"));
}

TEST_F(MessagePipeTest, StartedProgramsInheritNothing)
{
    const auto pipe = create();
    const int client = connect_client();
    ASSERT_FALSE(pipe->connect());
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
        EXPECT_EQ(exchange(), "1 end") << session.value_or("none");

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
    EXPECT_EQ(create_message_pipe("../pipe", {}, error_), nullptr);
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
        const int client = connect_client();
        // Refused when nothing can be read but the end.
        char nothing = 0;
        _exit(client >= 0 && read(client, &nothing, 1) == 0 ? 0 : 1);
    }
    auto connected = std::async(std::launch::async, [&] { return pipe->connect(); });
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    auto sent = sending("own");
    EXPECT_FALSE(connected.get());
    EXPECT_EQ(pieces(*pipe, 8), "3 end");
    pipe->disconnect();
    EXPECT_FALSE(sent.get());
}
