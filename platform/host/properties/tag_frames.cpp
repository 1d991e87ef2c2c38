#include "platform/host/properties/tag_frames.h"

namespace platform {

TagFrames* TagFrames::instance()
{
    static TagFrames frames;
    return &frames;
}

bool TagFrames::updateFrame(AnyFrame::Header* header) const
{
    // TagLib makes the frames inside a chapter by itself, and no property comes from there.
    const TagLib::ByteVector name = header->frameID();
    if (!header->compression() && name != "CHAP" && name != "CTOC")
        return FrameFactory::updateFrame(header);
    // An unknown frame is inflated as well, unless its head is written anew: this leaves out all flags.
    constexpr unsigned newest_version = 4;
    header->setVersion(newest_version);
    header->setData(header->render(), newest_version);
    return false;
}

}
