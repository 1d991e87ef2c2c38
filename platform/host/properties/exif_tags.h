#pragma once

#include <libexif/exif-data.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace platform {

/// The tags of one Exif block. A tag is found in the one directory where it belongs: a camera's thumbnail has tags of
/// the same numbers.
class ExifTags
{
public:
    /// `block` as `exif_block` gives it.
    explicit ExifTags(const std::string& block);

    bool is_empty() const;

    /// The numbers of a tag, fractions divided; without those that divide by zero.
    std::vector<double> numbers(ExifIfd directory, int tag) const;
    /// Empty when the tag isn't there or holds no number.
    std::optional<double> number(ExifIfd directory, int tag) const;
    /// The tag's bytes as they are; empty when it isn't there.
    std::string bytes(ExifIfd directory, int tag) const;

private:
    struct Unref {
        void operator()(ExifData* data) const { exif_data_unref(data); }
    };

    std::unique_ptr<ExifData, Unref> data_;

    const ExifEntry* find(ExifIfd directory, int tag) const;
};

}
