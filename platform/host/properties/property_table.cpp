#include "platform/host/properties/property_table.h"

#include "platform/host/properties/reader_table.h"

#include <algorithm>

namespace platform {

namespace {

using enum PropertyType;

constexpr unsigned from_any = FromExif | FromTags | FromMedia | FromPdf | FromOffice;
constexpr unsigned from_sound = FromTags | FromMedia;
constexpr unsigned from_document = FromPdf | FromOffice;

constexpr PropertyRow rows[] = {
    {u"System.ItemNameDisplay", u"Name", FromPath, Lpwstr, Display::Plain},
    {u"System.FileName", u"Filename", FromPath, Lpwstr, Display::Plain},
    {u"System.FileExtension", u"File extension", FromPath, Lpwstr, Display::Plain},
    {u"System.ItemTypeText", u"Item type", FromType, Lpwstr, Display::Plain},
    {u"System.MIMEType", u"Content type", FromType, Lpwstr, Display::Plain},
    {u"System.Kind", u"Kind", FromType, StringVector, Display::Plain},
    {u"System.ItemPathDisplay", u"Path", FromPath, Lpwstr, Display::Plain},
    {u"System.ItemFolderPathDisplay", u"Folder path", FromPath, Lpwstr, Display::Plain},
    {u"System.ItemFolderNameDisplay", u"Folder name", FromPath, Lpwstr, Display::Plain},
    {u"System.Size", u"Size", FromFileSystem, UI8, Display::Size},
    {u"System.FileAllocationSize", u"Size on disk", FromFileSystem, UI8, Display::Size},
    {u"System.DateCreated", u"Date created", FromFileSystem, FileTime, Display::Moment},
    {u"System.DateModified", u"Date modified", FromFileSystem, FileTime, Display::Moment},
    {u"System.DateAccessed", u"Date accessed", FromFileSystem, FileTime, Display::Moment},
    {u"System.FileAttributes", u"Attributes", FromFileSystem, UI4, Display::Attributes},
    {u"System.FileOwner", u"Owner", FromFileSystem, Lpwstr, Display::Plain},
    {u"System.IsFolder", u"Is a folder", FromFileSystem, Bool, Display::YesNo},
    {u"System.IsEncrypted", u"Encrypted", FromFileSystem, Bool, Display::YesNo},

    {u"System.Title", u"Title", from_any, Lpwstr, Display::Plain},
    {u"System.Subject", u"Subject", from_any, Lpwstr, Display::Plain},
    {u"System.Author", u"Authors", from_any, StringVector, Display::Plain},
    {u"System.Keywords", u"Tags", from_any, StringVector, Display::Plain},
    {u"System.Comment", u"Comments", FromExif | from_sound | FromOffice, Lpwstr, Display::Plain},
    {u"System.Copyright", u"Copyright", FromExif | from_sound, Lpwstr, Display::Plain},
    {u"System.Rating", u"Rating", FromExif | FromTags, UI4, Display::Stars},
    {u"System.ApplicationName", u"Program name", from_any, Lpwstr, Display::Plain},
    {u"System.Language", u"Language", from_sound | from_document, Lpwstr, Display::Plain},
    {u"System.Company", u"Company", FromOffice, Lpwstr, Display::Plain},
    {u"System.Category", u"Categories", FromOffice, StringVector, Display::Plain},

    {u"System.Image.Dimensions", u"Dimensions", FromImage | FromExif, Lpwstr, Display::Plain},
    {u"System.Image.HorizontalSize", u"Width", FromImage | FromExif, UI4, Display::Pixels},
    {u"System.Image.VerticalSize", u"Height", FromImage | FromExif, UI4, Display::Pixels},
    {u"System.Image.BitDepth", u"Bit depth", FromImage, UI4, Display::Plain},
    {u"System.Image.HorizontalResolution", u"Horizontal resolution", FromExif, R8, Display::Resolution},
    {u"System.Image.VerticalResolution", u"Vertical resolution", FromExif, R8, Display::Resolution},
    {u"System.Image.ResolutionUnit", u"Resolution unit", FromExif, I2, Display::ResolutionUnit},
    {u"System.Image.ColorSpace", u"Color representation", FromExif, UI2, Display::ColorSpace},

    {u"System.Photo.DateTaken", u"Date taken", FromExif, FileTime, Display::Moment},
    {u"System.Photo.CameraManufacturer", u"Camera maker", FromExif, Lpwstr, Display::Plain},
    {u"System.Photo.CameraModel", u"Camera model", FromExif, Lpwstr, Display::Plain},
    {u"System.Photo.CameraSerialNumber", u"Camera serial number", FromExif, Lpwstr, Display::Plain},
    {u"System.Photo.LensManufacturer", u"Lens maker", FromExif, Lpwstr, Display::Plain},
    {u"System.Photo.LensModel", u"Lens model", FromExif, Lpwstr, Display::Plain},
    {u"System.Photo.FNumber", u"F-stop", FromExif, R8, Display::FNumber},
    {u"System.Photo.ExposureTime", u"Exposure time", FromExif, R8, Display::Seconds},
    {u"System.Photo.ISOSpeed", u"ISO speed", FromExif, UI2, Display::Iso},
    {u"System.Photo.ExposureBias", u"Exposure bias", FromExif, R8, Display::Steps},
    {u"System.Photo.ExposureProgram", u"Exposure program", FromExif, UI4, Display::Program},
    {u"System.Photo.FocalLength", u"Focal length", FromExif, R8, Display::Millimetres},
    {u"System.Photo.FocalLengthInFilm", u"35mm focal length", FromExif, UI2, Display::Millimetres},
    {u"System.Photo.Aperture", u"Aperture", FromExif, R8, Display::ApexAperture},
    {u"System.Photo.MaxAperture", u"Max aperture", FromExif, R8, Display::ApexAperture},
    {u"System.Photo.ShutterSpeed", u"Shutter speed", FromExif, R8, Display::ApexSpeed},
    {u"System.Photo.MeteringMode", u"Metering mode", FromExif, UI2, Display::Metering},
    {u"System.Photo.Flash", u"Flash mode", FromExif, UI1, Display::Flash},
    {u"System.Photo.LightSource", u"Light source", FromExif, UI4, Display::Light},
    {u"System.Photo.WhiteBalance", u"White balance", FromExif, UI4, Display::WhiteBalance},
    {u"System.Photo.SubjectDistance", u"Subject distance", FromExif, R8, Display::Metres},
    {u"System.Photo.DigitalZoom", u"Digital zoom", FromExif, R8, Display::Number},
    {u"System.Photo.Orientation", u"Orientation", FromExif, UI2, Display::Orientation},
    {u"System.Photo.EXIFVersion", u"EXIF version", FromExif, Lpwstr, Display::Plain},
    {u"System.GPS.LatitudeDecimal", u"Latitude", FromExif, R8, Display::Plain},
    {u"System.GPS.LongitudeDecimal", u"Longitude", FromExif, R8, Display::Plain},
    {u"System.GPS.Altitude", u"Altitude", FromExif, R8, Display::Metres},

    {u"System.Media.Duration", u"Length", from_sound, UI8, Display::Duration},
    {u"System.Media.Year", u"Year", from_sound, UI4, Display::Plain},
    {u"System.Media.SubTitle", u"Subtitle", FromTags, Lpwstr, Display::Plain},
    {u"System.Media.Publisher", u"Publisher", from_sound, Lpwstr, Display::Plain},
    {u"System.Media.EncodedBy", u"Encoded by", from_sound, Lpwstr, Display::Plain},
    {u"System.Media.DateEncoded", u"Media created", FromMedia, FileTime, Display::Moment},

    {u"System.Music.Artist", u"Contributing artists", from_sound, StringVector, Display::Plain},
    {u"System.Music.DisplayArtist", u"Artist", from_sound, Lpwstr, Display::Plain},
    {u"System.Music.AlbumTitle", u"Album", from_sound, Lpwstr, Display::Plain},
    {u"System.Music.AlbumArtist", u"Album artist", from_sound, Lpwstr, Display::Plain},
    {u"System.Music.TrackNumber", u"#", from_sound, UI4, Display::Plain},
    {u"System.Music.DiscNumber", u"Disc", FromTags, UI4, Display::Plain},
    {u"System.Music.PartOfSet", u"Part of set", FromTags, Lpwstr, Display::Plain},
    {u"System.Music.Genre", u"Genre", from_sound, StringVector, Display::Plain},
    {u"System.Music.Composer", u"Composers", from_sound, StringVector, Display::Plain},
    {u"System.Music.Conductor", u"Conductors", FromTags, StringVector, Display::Plain},
    {u"System.Music.BeatsPerMinute", u"Beats-per-minute", FromTags, Lpwstr, Display::Plain},
    {u"System.Music.InitialKey", u"Initial key", FromTags, Lpwstr, Display::Plain},
    {u"System.Music.Mood", u"Mood", FromTags, Lpwstr, Display::Plain},
    {u"System.Music.Lyrics", u"Lyrics", FromTags, Lpwstr, Display::Plain},

    {u"System.Audio.EncodingBitrate", u"Bit rate", from_sound, UI4, Display::BitRate},
    {u"System.Audio.SampleRate", u"Audio sample rate", from_sound, UI4, Display::SampleRate},
    {u"System.Audio.SampleSize", u"Audio sample size", from_sound, UI4, Display::Bits},
    {u"System.Audio.ChannelCount", u"Channels", from_sound, UI4, Display::Channels},
    {u"System.Audio.Format", u"Audio format", from_sound, Lpwstr, Display::Plain},
    {u"System.Audio.IsVariableBitRate", u"Is VBR", FromMedia, Bool, Display::YesNo},

    {u"System.Video.FrameWidth", u"Frame width", FromFilm, UI4, Display::Pixels},
    {u"System.Video.FrameHeight", u"Frame height", FromFilm, UI4, Display::Pixels},
    {u"System.Video.FrameRate", u"Frame rate", FromFilm, UI4, Display::FrameRate},
    {u"System.Media.FrameCount", u"Frame count", FromFilm, UI4, Display::Number},
    {u"System.Video.EncodingBitrate", u"Data rate", FromFilm, UI4, Display::BitRate},
    {u"System.Video.TotalBitrate", u"Total bitrate", FromFilm, UI4, Display::BitRate},
    {u"System.Video.Compression", u"Video compression", FromFilm, Lpwstr, Display::Plain},
    {u"System.Video.FourCC", u"FourCC", FromFilm, UI4, Display::FourCc},
    {u"System.Video.Orientation", u"Video orientation", FromFilm, UI4, Display::Degrees},
    {u"System.Video.Director", u"Directors", FromFilm, StringVector, Display::Plain},

    {u"System.Document.PageCount", u"Pages", from_document, I4, Display::Number},
    {u"System.Document.SlideCount", u"Slides", FromOffice, I4, Display::Number},
    {u"System.Document.WordCount", u"Word count", FromOffice, I4, Display::Number},
    {u"System.Document.LineCount", u"Line count", FromOffice, I4, Display::Number},
    {u"System.Document.CharacterCount", u"Character count", FromOffice, I4, Display::Number},
    {u"System.Document.LastAuthor", u"Last saved by", FromOffice, Lpwstr, Display::Plain},
    {u"System.Document.RevisionNumber", u"Revision number", FromOffice, Lpwstr, Display::Plain},
    {u"System.Document.DateCreated", u"Content created", from_document, FileTime, Display::Moment},
    {u"System.Document.DateSaved", u"Date last saved", from_document, FileTime, Display::Moment},
    {u"System.Document.TotalEditingTime", u"Total editing time", FromOffice, UI8, Display::Duration},
};

}

std::span<const PropertyRow> property_rows()
{
    return rows;
}

const PropertyRow* find_property_row(std::u16string_view name)
{
    const auto* const row = std::ranges::find(rows, name, &PropertyRow::name);
    return row == std::end(rows) ? nullptr : row;
}

}
