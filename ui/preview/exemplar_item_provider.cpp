#include "ui/preview/exemplar_item_provider.h"

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
    connect(exemplar_.get(), &ExemplarItem::properties_read, this, pass_on, Qt::QueuedConnection);
    emit exemplar_item_changed();
}
