#pragma once

#include "ui/preview/exemplar_item.h"

/// Keeps the sample item that the controls of parts show their examples of. Main thread only.
class ExemplarItemProvider final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    /// Waits a short while for properties that are being read.
    ~ExemplarItemProvider() override;

    /// Null before the first selection.
    const std::shared_ptr<ExemplarItem>& exemplar() const { return exemplar_; }

    void set_item(std::shared_ptr<const MVItemBase> item);

signals:
    /// Another item, none of whose properties are read.
    void exemplar_item_changed();
    /// More of the exemplar's properties have come since they were asked for.
    void exemplar_properties_read();

private:
    std::shared_ptr<ExemplarItem> exemplar_;
};
