#pragma once

#include "app/mirvanta_named_pipe_server.h"
#include "app/path_probe.h"
#include "app/selection_intake.h"

/// The way of a selection to the window: in through the pipe, over a look at its paths, and on once nobody reads the
/// selection before. Main thread only.
class SelectionSource final : public QObject
{
    Q_OBJECT

public:
    explicit SelectionSource(QObject* parent = nullptr);

    /// Begins to listen at the pipe; once. Where that fails selections can't come in, which the debug log tells.
    void start();

    /// From here on who sends a selection is refused, and starts the program anew.
    void end();

    /// A selection has arrived: `ready` follows with it, or with the next one in its place. Whoever reads the one
    /// before is asked to stop.
    void take(int command_index, const QStringList& paths);

    /// Whether a selection has been taken that is still on its way to `ready`. False within that signal, unless a
    /// newer one has arrived.
    bool is_selection_coming() const { return intake_.is_selection_waiting(); }

    SelectionReaders& readers() { return intake_; }

signals:
    /// A selection came in by the pipe. Whoever wants it calls `take`. `command_index` is a row of the menu list,
    /// negative for none.
    void arrived(int command_index, QStringList paths);
    /// The newest selection's paths have answered or had their time, and nobody reads the one before: the slot takes
    /// the items of `selection` before it returns.
    void ready(int command_index, std::shared_ptr<NewSelection> selection);

private:
    PathProbe probe_;
    SelectionIntake intake_;
    Serving<MirvantaNamedPipeServer> pipe_server_;
};
