#pragma once

/// Two processes from one, as the constructor returns twice: the foreground one, which tells its caller how it went,
/// and one in a session of its own, which belongs to nobody and goes on.
class BackgroundProcess
{
public:
    BackgroundProcess();
    ~BackgroundProcess();
    BackgroundProcess(const BackgroundProcess&) = delete;
    BackgroundProcess& operator=(const BackgroundProcess&) = delete;

    bool is_foreground() const { return is_foreground_; }

    /// In the foreground: 0 when the other process reports success, 1 when it ends without.
    int wait_for_report() const;

    /// In the background, once. Then nothing of the caller's is held any more: not its folder, terminal or streams.
    /// False when nobody is left to hear it.
    bool report_success();

private:
    void go_to_background(bool has_own_session);

    int report_ = -1; ///< the end of a pipe; -1 when there is none
    bool is_foreground_ = true;
};
