#include "platform/host/properties/readers.h"
#include "platform/paths.h"

#include <QMimeDatabase>

#include <sys/stat.h>

#include <array>

namespace platform {

namespace {

struct KindRow {
    std::u16string_view mime_prefix;
    std::u16string_view kind;
};

// The kinds are those of the documented Kind names.
constexpr std::array<KindRow, 12> kind_rows{{{u"image/", u"picture"},
                                             {u"audio/", u"music"},
                                             {u"video/", u"video"},
                                             {u"text/", u"document"},
                                             {u"inode/directory", u"folder"},
                                             {u"inode/symlink", u"link"},
                                             {u"application/pdf", u"document"},
                                             {u"application/vnd.oasis.opendocument.", u"document"},
                                             {u"application/vnd.openxmlformats-officedocument.", u"document"},
                                             {u"application/msword", u"document"},
                                             {u"application/x-executable", u"program"},
                                             {u"message/rfc822", u"email"}}};

/// The name of the type of what is no regular file; null for one that is.
const char* type_without_content(unsigned host_type)
{
    switch (host_type) {
    case S_IFREG: return nullptr;
    case S_IFDIR: return "inode/directory";
    case S_IFIFO: return "inode/fifo";
    case S_IFSOCK: return "inode/socket";
    case S_IFCHR: return "inode/chardevice";
    case S_IFBLK: return "inode/blockdevice";
    default: return "inode/symlink"; // that leads nowhere
    }
}

/// True when the name says less of the type than the content, or something else.
bool is_misleading(SubjectFile& file)
{
    const ExtensionRow* const row = find_extension(file.extension());
    return row && row->is_shared && (row->kind == FileKind::Other || row->kind != file.kind());
}

QMimeType type_of(SubjectFile& file)
{
    static const QMimeDatabase database;
    if (const char* const name = type_without_content(file.host_type()))
        return database.mimeTypeForName(QString::fromLatin1(name));
    std::u16string name(file.name());
    make_presentable(name);
    const QByteArray head(file.head().data(), static_cast<qsizetype>(file.head().size()));
    if (is_misleading(file) && !head.isEmpty())
        return database.mimeTypeForData(head);
    return database.mimeTypeForFileNameAndData(QString::fromStdU16String(name), head);
}

void set_kind(PropertyBag& bag, const std::u16string& mime_name)
{
    for (const auto& row : kind_rows)
        if (mime_name.starts_with(row.mime_prefix))
            return bag.set_list(u"System.Kind", row.kind);
}

}

bool read_type(SubjectFile& file, PropertyBag& bag)
{
    const QMimeType type = type_of(file);
    const std::u16string mime_name = type.name().toStdU16String();
    bag.set_text(u"System.MIMEType", mime_name);
    bag.set_text(u"System.ItemTypeText", type.comment().toStdU16String());
    // Of several streams in one file the database tells the first.
    if (file.kind() == FileKind::Video)
        bag.set_list(u"System.Kind", u"video");
    set_kind(bag, mime_name);
    return true;
}

}
