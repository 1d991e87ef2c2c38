#pragma once

#include "engine/items/mv_item_base.h"

/// A file, or whatever else is no folder.
class MVItemFile final : public MVItemBase
{
public:
    MVItemFile(MVItemInfo info, const MVItemFolder* parent) : MVItemBase(std::move(info), parent) {}
};
