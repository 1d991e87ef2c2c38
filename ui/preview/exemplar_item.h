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
    QString value_text; ///< empty when the item doesn't have the property

    bool operator==(const ExemplarProperty&) const = default;
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

    /// All properties that the item can have, in the system's order; null until they are read. The first call begins
    /// that, in the background.
    const std::vector<ExemplarProperty>* properties();

    /// Waits so long at the most for a read in progress. Nobody is told of its end any more.
    void finish_reading(std::chrono::milliseconds longest);

signals:
    /// Comes from the thread that reads.
    void properties_read();

private:
    struct Reading;

    void begin_reading();

    const std::shared_ptr<const MVItemBase> item_;
    std::shared_ptr<Reading> reading_; ///< shared with the thread that reads
};
