#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

/// Looks at the paths of a selection on a thread of its own before the window does: a disk that sleeps or a server
/// that is gone holds nothing up then, and what has been looked at once is quickly told again. Main thread only.
class PathProbe final : public QObject
{
    Q_OBJECT

public:
    /// Looks at one path; called on any thread, may take for ever. A std::exception counts as an answer.
    using Look = std::function<void(const QString& path)>;

    explicit PathProbe(Look look = read_attributes, QObject* parent = nullptr);
    /// Waits for nobody.
    ~PathProbe() override;

    static void read_attributes(const QString& path);

public slots:
    /// Begins with a selection and forgets the one before, whether its paths have answered or not.
    void start(int command_index, const QStringList& paths);

signals:
    /// Every path of the newest selection has answered, or no thread can be had to ask them. Comes later than
    /// `start`.
    void answered(int command_index, QStringList paths);

    void run_ended(quint64 number, QPrivateSignal);

private:
    struct Run;

    void tell(quint64 number);
    void forget();

    const Look look_;
    std::shared_ptr<Run> run_; ///< shared with its thread; null once its answer is told
    quint64 runs_ = 0;         ///< the newest run's number
};
