#include "ui/preview/exemplar_item.h"

#include "engine/properties/item_property_reader.h"
#include "ui/text.h"

#include <QDebug>

#include <condition_variable>
#include <exception>
#include <mutex>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

namespace {

using Properties = std::vector<ExemplarProperty>;

Properties read_properties(const std::u16string& path)
{
    Properties properties;
    ItemPropertyReader reader(path);
    const auto names = reader.property_names();
    reader.load_display_values(names);
    for (const std::u16string& name : names)
        properties.push_back({to_qstring(name), to_qstring(platform::property_display_name(name)),
                              to_qstring(reader.display_value(name))});
    return properties;
}

Properties properties_or_none(const std::u16string& path)
{
    try {
        return read_properties(path);
    } catch (const std::exception& error) {
        qDebug() << "No properties of the example:" << error.what();
        return {};
    }
}

}

struct ExemplarItem::Reading {
    void end(Properties result)
    {
        const std::lock_guard lock(mutex);
        properties = std::move(result);
        done = true;
        ended.notify_all();
        if (receiver)
            emit receiver->properties_read();
    }

    bool is_done()
    {
        const std::lock_guard lock(mutex);
        return done;
    }

    std::mutex mutex;
    std::condition_variable ended;
    ExemplarItem* receiver; ///< null once it has gone
    bool done = false;
    Properties properties; ///< doesn't change once it is done
};

ExemplarItem::ExemplarItem(std::shared_ptr<const MVItemBase> item) : item_(std::move(item)) {}

ExemplarItem::~ExemplarItem()
{
    finish_reading({});
}

const std::vector<ExemplarProperty>* ExemplarItem::properties()
{
    if (!reading_)
        begin_reading();
    return reading_->is_done() ? &reading_->properties : nullptr;
}

void ExemplarItem::begin_reading()
{
    reading_ = std::make_shared<Reading>();
    reading_->receiver = this;
    try {
        std::thread([reading = reading_, path = item_->full_path()] {
            reading->end(properties_or_none(path));
        }).detach();
    } catch (const std::system_error& error) {
        qDebug() << "No thread for the example's properties:" << error.what();
        reading_->end({});
    }
}

void ExemplarItem::finish_reading(std::chrono::milliseconds longest)
{
    if (!reading_)
        return;
    std::unique_lock lock(reading_->mutex);
    reading_->receiver = nullptr;
    reading_->ended.wait_for(lock, longest, [this] { return reading_->done; });
}
