#include "app/selection_paths.h"

#include "engine/items/delete_elsewhere.h"
#include "ui/text.h"

#include <QDebug>

#include <exception>

namespace {

void add_path(NewSelection& selection, const QString& path, const PathAnswer& answer)
{
    const std::size_t before = selection.items.items().size();
    selection.items.add_path(from_qstring(path), answer.has_come ? answer.attributes : platform::FileAttributes{});
    if (!answer.has_come)
        selection.silent += selection.items.items().size() - before;
}

}

std::shared_ptr<NewSelection> select_paths(const QStringList& paths, std::span<const PathAnswer> answers)
{
    std::shared_ptr<NewSelection> selection(new NewSelection, &delete_elsewhere<NewSelection>);
    for (qsizetype i = 0; i < paths.size(); ++i) {
        try {
            add_path(*selection, paths[i], answers[static_cast<std::size_t>(i)]);
        } catch (const std::exception& error) {
            qDebug().noquote() << QStringLiteral("Exception adding path '%1': %2").arg(paths[i], error.what());
        }
    }
    return selection;
}

std::shared_ptr<const MVItemBase> standing_alone(const MVItemBase& item)
{
    auto alone = std::make_shared<MVItemsSet>();
    const platform::FileAttributes& attributes = item.info();
    alone->add_path(item.full_path(), attributes);
    return {alone, alone->items().front().get()};
}
