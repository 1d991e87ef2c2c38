#pragma once

#include "platform/files.h"

#include <QObject>
#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

struct NewSelection;
class PathLooks;

/// Reads a selection on threads of its own before the window takes it: a disk that sleeps or a server that is gone
/// holds nothing up then but the selection itself, and that for seconds at the most while no path answers. Main
/// thread only.
class PathProbe final : public QObject
{
    Q_OBJECT

public:
    /// Looks at one path; called on any thread, may take for ever. A std::exception counts as unreadable attributes.
    using Look = std::function<std::optional<platform::FileAttributes>(const QString& path)>;

    /// A path has `patience` to answer, from when it is asked.
    explicit PathProbe(Look look = read_attributes, std::chrono::milliseconds patience = std::chrono::seconds(2),
                       QObject* parent = nullptr);
    /// Waits for nobody.
    ~PathProbe() override;

    static std::optional<platform::FileAttributes> read_attributes(const QString& path);

public slots:
    /// Begins with a selection and forgets the one before, whether its paths have answered or not.
    void start(int command_index, const QStringList& paths);

signals:
    /// Every path of the newest selection has answered or had its time, or no thread can be had to ask them. Comes
    /// later than `start`.
    void answered(int command_index, std::shared_ptr<NewSelection> selection);

    void run_ended(quint64 number, QPrivateSignal);

private:
    struct Run;

    void tell(quint64 number);
    void forget();

    const std::shared_ptr<PathLooks> looks_; ///< shared with the threads at work
    std::shared_ptr<Run> run_;               ///< shared with its thread; null once its answer is told
    quint64 runs_ = 0;                       ///< the newest run's number
};
