#include "app/selection_paths.h"

#include "engine/items/delete_elsewhere.h"
#include "engine/items/mv_item_folder.h"
#include "ui/text.h"

#include <QDebug>

#include <exception>
#include <ranges>
#include <vector>

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
    struct Lineage {
        std::vector<std::unique_ptr<const MVItemFolder>> folders; ///< from the root on
        std::shared_ptr<const MVItemBase> item;
    };

    std::vector<const MVItemFolder*> ancestors;
    for (const MVItemFolder* folder = item.parent(); folder; folder = folder->parent())
        ancestors.push_back(folder);
    const auto alone = std::make_shared<Lineage>();
    const MVItemFolder* parent = nullptr;
    for (const MVItemFolder* ancestor : std::views::reverse(ancestors)) {
        alone->folders.push_back(std::make_unique<const MVItemFolder>(ancestor->info(), parent));
        parent = alone->folders.back().get();
    }
    alone->item = make_item(item.info(), parent);
    return {alone, alone->item.get()};
}
