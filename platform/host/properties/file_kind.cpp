#include "platform/host/properties/subject_file.h"

#include <array>

namespace platform {

namespace {

struct KindRow {
    FileKind kind;
    /// Lower case, each with its dot, separated by blanks.
    std::string_view extensions;
};

constexpr std::array<KindRow, 5> kinds{{
    {FileKind::Image, ".jpg .jpeg .jpe .jfif .png .gif .bmp .dib .webp .tif .tiff .ico .cur .ppm .pgm .pbm .tga .jp2 "
                      ".heic .heif .avif .dng .cr2 .nef .arw .orf .rw2 .pef .srw "},
    {FileKind::Audio,
     ".mp3 .mp2 .mpga .flac .ogg .oga .opus .spx .m4a .m4b .m4p .aac .wav .wave .aif .aiff .aifc .wma "
     ".ape .mpc .wv .tta .mka .ac3 .dts .amr .au .mod .xm .s3m .it "},
    {FileKind::Video,
     // Not .ts and .mts, which are ambiguous.
     ".mp4 .m4v .mov .qt .mkv .webm .avi .wmv .asf .mpg .mpeg .mpe .m2v .m2ts .vob .ogv .ogm "
     ".flv .f4v .3gp .3g2 .divx .rm .rmvb .mxf "},
    {FileKind::Pdf, ".pdf .ai "},
    {FileKind::Office,
     ".docx .docm .dotx .dotm .xlsx .xlsm .xlsb .xltx .pptx .pptm .ppsx .potx .odt .ott .ods .ots .odp "
     ".otp .odg .odf .vsdx "},
}};

struct MagicRow {
    std::size_t offset;
    std::string_view bytes;
    FileKind kind;
};

using namespace std::string_view_literals;

constexpr std::array<MagicRow, 18> magics{{
    {0, "\xFF\xD8\xFF"sv, FileKind::Image},
    {0, "\x89PNG\r\n"sv, FileKind::Image},
    {0, "GIF8"sv, FileKind::Image},
    {0, "II*\0"sv, FileKind::Image},
    {0, "MM\0*"sv, FileKind::Image},
    {8, "WEBP"sv, FileKind::Image},
    {8, "WAVE"sv, FileKind::Audio},
    {8, "AVI "sv, FileKind::Video},
    {8, "AIFF"sv, FileKind::Audio},
    {0, "ID3"sv, FileKind::Audio},
    {0, "fLaC"sv, FileKind::Audio},
    {0, "OggS"sv, FileKind::Audio},
    {4, "ftypM4A"sv, FileKind::Audio},
    {4, "ftyp"sv, FileKind::Video},
    {0, "\x1A\x45\xDF\xA3"sv, FileKind::Video},
    {0, "\x30\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9\x00\xAA\x00\x62\xCE\x6C"sv, FileKind::Video},
    {0, "%PDF-"sv, FileKind::Pdf},
    {0, "PK\3\4"sv, FileKind::Office},
}};

constexpr std::size_t longest_extension = 6;

/// True for an MPEG transport stream: each packet begins with the same byte, perhaps behind four bytes of time.
bool is_transport_stream(std::string_view head)
{
    struct Packets {
        std::size_t first, size;
    };

    constexpr std::size_t fewest = 5;
    constexpr char sync = 'G';
    for (const Packets& packets : {Packets{0, 188}, Packets{4, 192}}) {
        std::size_t count = 0;
        for (std::size_t at = packets.first; at < head.size() && head[at] == sync; at += packets.size)
            ++count;
        if (count >= fewest && packets.first + count * packets.size >= head.size())
            return true;
    }
    return false;
}

/// In lower case with a blank behind it; empty for one that no list has.
std::string listed_form(std::u16string_view extension)
{
    if (extension.size() < 2 || extension.size() > longest_extension)
        return {};
    std::string word;
    for (const char16_t unit : extension) {
        if (unit <= u' ' || unit > u'~')
            return {};
        word += static_cast<char>(unit >= u'A' && unit <= u'Z' ? unit + ('a' - 'A') : unit);
    }
    return word + ' ';
}

}

bool is_ambiguous(std::u16string_view extension)
{
    const std::string word = listed_form(extension);
    return word == ".ts " || word == ".mts ";
}

std::optional<FileKind> kind_by_extension(std::u16string_view extension)
{
    const std::string word = listed_form(extension);
    if (word.empty())
        return {};
    for (const auto& row : kinds)
        if (row.extensions.find(word) != row.extensions.npos)
            return row.kind;
    return {};
}

FileKind kind_by_content(std::string_view head)
{
    for (const auto& row : magics)
        if (head.size() > row.offset && head.substr(row.offset).starts_with(row.bytes))
            return row.kind;
    return is_transport_stream(head) ? FileKind::Video : FileKind::Other;
}

}
