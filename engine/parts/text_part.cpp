#include "engine/parts/text_part.h"

#include "engine/parts/text_run_context.h"
#include "engine/text/json_access.h"
#include "engine/text/utf.h"

ItemPartText::ItemPartText(const boost::json::object& json) : text_(json_access::required_text(json, "text")) {}

boost::json::object ItemPartText::to_json() const
{
    return {{"text", to_utf8(text_)}};
}

void ItemPartText::append_text(TextRunContext& context, const MVItemBase&, int) const
{
    context.output.append(text_);
}
