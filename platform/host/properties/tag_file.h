#pragma once

#include "platform/host/properties/tag_stream.h"

#include <id3v2tag.h>
#include <tfile.h>
#include <tpropertymap.h>

#include <memory>

namespace platform {

/// An audio file opened with TagLib.
class TagFile
{
public:
    explicit TagFile(SubjectFile& file);

    /// Null when TagLib doesn't know the format.
    TagLib::File* get() const { return file_.get(); }

    /// What the file's tags say; the file is known.
    TagLib::PropertyMap tags() const;

    /// False for a file whose stream TagLib takes for sound whatever it is.
    bool knows_sound() const { return knows_sound_; }

private:
    std::unique_ptr<TagStream> stream_;
    std::unique_ptr<TagLib::File> file_;
    /// Of a file whose ID3 tag TagLib would read with frames of its own.
    std::unique_ptr<TagLib::ID3v2::Tag> hidden_tag_;
    bool knows_sound_ = true;
};

/// "MPEG Audio", "FLAC" ...; empty for a format without a name here.
std::string_view format_name(const TagLib::File& file);

/// Bits a sample; 0 when the format doesn't tell.
int sample_size(const TagLib::AudioProperties& properties);

}
