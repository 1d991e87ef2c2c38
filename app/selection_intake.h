#pragma once

#include "ui/selection_reader.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

struct NewSelection;

/// Takes selections as they arrive and lets the newest one through as soon as nobody reads the old one: the readers
/// at work are asked to stop, nothing waits for them. Main thread only.
class SelectionIntake final : public QObject, public SelectionReaders
{
    Q_OBJECT

public:
    explicit SelectionIntake(QObject* parent = nullptr);

    void add_reader(SelectionReader& reader) override;
    void remove_reader(SelectionReader& reader) override;
    void reading_ended() override;

    bool is_selection_waiting() const override { return is_expected_ || waiting_.has_value(); }

    /// A selection will come, or another one in its place: the readers at work can stop already.
    void expect();

public slots:
    /// A selection has come. It replaces, with its index, one that still waits.
    void take(int command_index, std::shared_ptr<NewSelection> selection);

signals:
    /// Nobody reads the selection now: the slot changes it before it returns. Comes from within `take` when nobody
    /// was reading.
    void selection_ready(int command_index, std::shared_ptr<NewSelection> selection);

private:
    struct Waiting {
        int command_index;
        std::shared_ptr<NewSelection> selection;
    };

    /// Lets the waiting selection through, or asks those who still read to stop.
    void proceed();

    void stop_readers();

    bool is_expected_ = false;
    std::optional<Waiting> waiting_;
    std::vector<SelectionReader*> readers_;
};
