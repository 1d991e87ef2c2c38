#include "platform/host/properties/reader_table.h"

namespace platform {

std::span<const ReaderRow> built_in_readers()
{
    static constexpr ReaderRow rows[] = {
        {FromPath, read_path},
        {FromFileSystem, read_file_system},
        {FromType, read_type},
#ifdef VELLUMARK_WITH_QTGUI
        {FromImage, read_image},
#endif
#ifdef VELLUMARK_WITH_EXIF
        {FromExif, read_exif},
#endif
#ifdef VELLUMARK_WITH_TAGLIB
        {FromTags, read_tags},
#endif
#ifdef VELLUMARK_WITH_MEDIAINFO
        {FromMedia | FromFilm, read_media},
#endif
#ifdef VELLUMARK_WITH_QPDF
        {FromPdf, read_pdf},
#endif
#ifdef VELLUMARK_WITH_LIBZIP
        {FromOffice, read_office},
#endif
    };
    return rows;
}

unsigned readers_of(FileKind kind)
{
    constexpr unsigned any = FromPath | FromFileSystem | FromType;
    switch (kind) {
    case FileKind::Image: return any | FromImage | FromExif;
    case FileKind::Audio: return any | FromTags | FromMedia;
    case FileKind::Video: return any | FromTags | FromMedia | FromFilm;
    case FileKind::Pdf: return any | FromPdf;
    case FileKind::Office: return any | FromOffice;
    case FileKind::Other: break;
    }
    return any;
}

}
