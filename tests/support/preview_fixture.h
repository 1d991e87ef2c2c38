#pragma once

#include "engine/items/mv_items_set.h"
#include "support/becomes.h"
#include "support/temp_folder.h"
#include "ui/preview/preview_generator.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <string>

/// A command with one part for all items.
inline std::shared_ptr<VellumarkCommand> command_with(const std::string& part)
{
    return std::make_shared<VellumarkCommand>(
        boost::json::parse(R"({"name":"test","separator":",","fileParts":[)" + part + "]}").as_object());
}

inline std::shared_ptr<VellumarkCommand> literal(const std::string& text)
{
    return command_with(R"({"item-type":"text","text":")" + text + R"("})");
}

inline std::shared_ptr<VellumarkCommand> names()
{
    return command_with(R"({"item-type":"name","name-type":"full-name"})");
}

inline std::shared_ptr<VellumarkCommand> checksums()
{
    return command_with(R"({"item-type":"checksum","checksum-type":"crc32"})");
}

/// What a generator says, as one line.
class PreviewLog
{
public:
    explicit PreviewLog(PreviewGenerator& generator)
    {
        QObject::connect(&generator, &PreviewGenerator::text_updating, [this] { text_ += "..."; });
        QObject::connect(&generator, &PreviewGenerator::text_ready,
                         [this](const QString& text) { text_ += "[" + text.toStdString() + "]"; });
    }

    const std::string& text() const { return text_; }

private:
    std::string text_;
};

inline bool settles(const PreviewGenerator& generator)
{
    return becomes([&] { return !generator.is_updating(); });
}
