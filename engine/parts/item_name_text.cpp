#include "engine/parts/item_name_text.h"

#include "platform/paths.h"

void append_name_text(TextRunContext& context, std::u16string text)
{
    platform::make_presentable(text);
    context.output.append(text);
}
