#include "ui/preview/exemplar_item_provider.h"

#include <QTimer>

#include <utility>

ExemplarItemProvider::~ExemplarItemProvider()
{
    // The process ends next, which a thread inside a library survives badly; a disk that hangs isn't waited for.
    if (exemplar_)
        exemplar_->finish_reading(std::chrono::milliseconds(500));
}

void ExemplarItemProvider::set_item(std::shared_ptr<const MVItemBase> item)
{
    exemplar_ = std::make_shared<ExemplarItem>(std::move(item));
    // The word of an item that has been replaced can still be under way.
    const auto pass_on = [this, item_in_place = std::weak_ptr(exemplar_)] {
        if (!item_in_place.expired())
            emit exemplar_properties_read();
    };
    // Others mostly follow the one that is told of.
    const auto gather = [this, pass_on] { QTimer::singleShot(std::chrono::milliseconds(50), this, pass_on); };
    connect(exemplar_.get(), &ExemplarItem::properties_read, this, gather, Qt::QueuedConnection);
    emit exemplar_item_changed();
}
