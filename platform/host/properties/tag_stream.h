#pragma once

#include "platform/host/properties/subject_file.h"

#include <tiostream.h>

namespace platform {

/// The file as TagLib takes it: read-only, and with a limit to what one read gives.
class TagStream final : public TagLib::IOStream
{
public:
    explicit TagStream(SubjectFile& file);

    /// From now on nothing is read of an ID3 tag but its head, or all again.
    void hide_tags(bool are_hidden) { hides_tags_ = are_hidden; }

    TagLib::FileName name() const override { return ""; }

    /// Behind a read that was cut the position is where the whole one would have ended.
    TagLib::ByteVector readBlock(unsigned long length) override;
    void seek(long offset, Position from = Beginning) override;

    long tell() const override { return position_; }

    long length() override { return static_cast<long>(file_.size()); }

    bool readOnly() const override { return true; }

    bool isOpen() const override { return is_open_; }

    void writeBlock(const TagLib::ByteVector&) override {}

    void insert(const TagLib::ByteVector&, unsigned long, unsigned long) override {}

    void removeBlock(unsigned long, unsigned long) override {}

    void truncate(long) override {}

private:
    SubjectFile& file_;
    bool is_open_;
    bool hides_tags_ = false;
    /// Whether the last read gave the head of an ID3 tag.
    bool is_in_tag_ = false;
    long position_ = 0;
    /// What was read last, at least a page of it: TagLib reads a few bytes at a time.
    std::string page_;
    long page_start_ = 0;
};

}
