#pragma once

#include "engine/items/mv_item_base.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <memory>
#include <vector>

/// A property of a sample item, in strings for people but for the canonical name.
struct ExemplarProperty {
    QString canonical_name;
    QString display_name;
    QString value_text; ///< empty when the item doesn't have the property, or it isn't read yet

    bool operator==(const ExemplarProperty&) const = default;
};

/// What is known so far of the properties of a sample item.
struct ExemplarProperties {
    /// All that the item can have, in the system's order. They come at once, their values one after the other. Empty
    /// before that, and for an item that is gone or can't be read.
    std::vector<ExemplarProperty> list;
    bool complete = false; ///< nothing more comes
};

/// An item that stands for the selection where one example is enough. Main thread only.
class ExemplarItem final : public QObject
{
    Q_OBJECT

public:
    explicit ExemplarItem(std::shared_ptr<const MVItemBase> item);
    /// Waits for nobody: a disk may never answer.
    ~ExemplarItem() override;

    const MVItemBase& item() const { return *item_; }

    /// The first call begins to read them, in the background.
    ExemplarProperties properties();

    /// Ends a read in progress before its next property and waits so long at the most for that. Nobody is told of
    /// anything any more.
    void finish_reading(std::chrono::milliseconds longest);

signals:
    /// More of them are there than the last call gave; comes once between two calls, from the thread that reads.
    void properties_read();

private:
    struct Reading;

    void begin_reading();

    const std::shared_ptr<const MVItemBase> item_;
    std::shared_ptr<Reading> reading_; ///< shared with the thread that reads
};
