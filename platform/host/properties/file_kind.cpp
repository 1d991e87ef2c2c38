#include "platform/host/properties/file_kind.h"

#include "platform/host/properties/text_bytes.h"

namespace platform {

namespace {

using enum FileKind;

constexpr ExtensionRow rows[] = {
    {Image, FileFormat::Tiff, ".tif .tiff "},
    {Image, FileFormat::Tga, ".tga "},
    {Image, FileFormat::Other,
     ".jpg .jpeg .jpe .jfif .png .gif .bmp .dib .webp .ico .cur .ppm .pgm .pbm .pnm .jp2 "
     ".heic .heif .avif .dng .cr2 .nef .arw .orf .rw2 .pef .srw "},
    {Audio, FileFormat::Mpeg, ".mp3 .mp2 .mpga "},
    {Audio, FileFormat::Flac, ".flac "},
    {Audio, FileFormat::Ogg, ".oga .opus .spx "},
    {Audio, FileFormat::Ogg, ".ogg ", true},
    {Audio, FileFormat::Mp4, ".m4a .m4b .m4p "},
    {Audio, FileFormat::Asf, ".wma "},
    {Audio, FileFormat::Wav, ".wav .wave "},
    {Audio, FileFormat::Aiff, ".aif .aiff .aifc "},
    {Audio, FileFormat::Ape, ".ape "},
    {Audio, FileFormat::Musepack, ".mpc "},
    {Audio, FileFormat::WavPack, ".wv "},
    {Audio, FileFormat::TrueAudio, ".tta "},
    {Audio, FileFormat::Other, ".aac .mka .ac3 .dts .amr .au .xm .s3m .it "},
    // Songs of trackers, and films of camcorders.
    {Audio, FileFormat::Other, ".mod ", true},
    {Video, FileFormat::Mp4, ".mp4 .m4v "},
    {Video, FileFormat::Asf, ".wmv .asf "},
    {Video, FileFormat::Other,
     ".mov .qt .mkv .webm .avi .mpg .mpeg .mpe .m2v .m2ts .vob .ogv .ogm "
     ".flv .f4v .3gp .3g2 .divx .rm .rmvb .mxf "},
    // Films, and texts of many kinds.
    {Other, FileFormat::Other, ".ts .mts ", true},
    {Pdf, FileFormat::Other, ".pdf .ai "},
    {Office, FileFormat::Other,
     ".docx .docm .dotx .dotm .xlsx .xlsm .xlsb .xltx .pptx .pptm .ppsx .potx .odt .ott .ods .ots .odp "
     ".otp .odg .odf .vsdx "},
};

}

const ExtensionRow* find_extension(std::u16string_view extension)
{
    if (extension.size() < 2 || extension.find(u' ') != extension.npos)
        return nullptr;
    const std::string word = lower_ascii(to_ascii(extension)) + ' ';
    for (const auto& row : rows)
        if (row.extensions.find(word) != row.extensions.npos)
            return &row;
    return nullptr;
}

}
