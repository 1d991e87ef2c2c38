#include "ui/preview/exemplar_item.h"

#include "engine/properties/item_property_reader.h"
#include "platform/properties.h"
#include "ui/text.h"

#include <QDebug>

#include <condition_variable>
#include <exception>
#include <mutex>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

struct ExemplarItem::Reading {
    /// Changes what is known; false when nobody wants it any more.
    template <typename Change>
    bool tell(Change change)
    {
        const std::lock_guard lock(mutex);
        change(known);
        if (receiver && !std::exchange(told, true))
            emit receiver->properties_read();
        return receiver != nullptr;
    }

    void read(const std::u16string& path);
    void end();

    std::mutex mutex;
    std::condition_variable ended;
    ExemplarItem* receiver; ///< null once it has gone
    bool told = false;      ///< and hasn't asked since
    ExemplarProperties known;
};

void ExemplarItem::Reading::read(const std::u16string& path)
{
    platform::FileProperties file(path);
    const std::vector<std::u16string> names = file.names();
    std::vector<ExemplarProperty> list;
    list.reserve(names.size());
    for (const std::u16string& name : names)
        list.push_back({to_qstring(name), to_qstring(platform::property_display_name(name)), {}});
    bool wanted = tell([&](ExemplarProperties& now) { now.list = std::move(list); });
    for (std::size_t i = 0; i < names.size() && wanted; ++i)
        if (const auto text = file.display_text(names[i]))
            wanted = tell([&](ExemplarProperties& now) {
                now.list[i].value_text = to_qstring(without_direction_marks(*text));
            });
}

void ExemplarItem::Reading::end()
{
    tell([](ExemplarProperties& now) { now.complete = true; });
    ended.notify_all();
}

ExemplarItem::ExemplarItem(std::shared_ptr<const MVItemBase> item) : item_(std::move(item)) {}

ExemplarItem::~ExemplarItem()
{
    finish_reading({});
}

ExemplarProperties ExemplarItem::properties()
{
    if (!reading_)
        begin_reading();
    const std::lock_guard lock(reading_->mutex);
    reading_->told = false;
    return reading_->known;
}

void ExemplarItem::begin_reading()
{
    reading_ = std::make_shared<Reading>();
    reading_->receiver = this;
    const auto read = [reading = reading_, path = item_->full_path()] {
        try {
            reading->read(path);
        } catch (const std::exception& error) {
            qDebug() << "The example's properties:" << error.what();
        }
        reading->end();
    };
    try {
        std::thread(read).detach();
    } catch (const std::system_error& error) {
        qDebug() << "No thread for the example's properties:" << error.what();
        reading_->end();
    }
}

void ExemplarItem::finish_reading(std::chrono::milliseconds longest)
{
    if (!reading_)
        return;
    std::unique_lock lock(reading_->mutex);
    reading_->receiver = nullptr;
    reading_->ended.wait_for(lock, longest, [this] { return reading_->known.complete; });
}
