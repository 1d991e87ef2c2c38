#pragma once

#include <id3v2framefactory.h>

namespace platform {

/// Makes the frames of ID3 tags. TagLib inflates compressed frames without a limit of its own, so they become frames
/// that nobody knows; hardly any program writes them.
class TagFrames final : public TagLib::ID3v2::FrameFactory
{
public:
    /// TagLib wants to be able to change what it makes frames with.
    static TagFrames* instance();

protected:
    /// TagLib shows the type to its frames alone.
    struct AnyFrame : TagLib::ID3v2::Frame {
        using Frame::Header;
    };

    bool updateFrame(AnyFrame::Header* header) const override;
};

}
