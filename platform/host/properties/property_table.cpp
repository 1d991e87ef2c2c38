#include "platform/host/properties/property_table.h"

#include "platform/host/properties/readers.h"

#include <algorithm>

namespace platform {

namespace {

using enum PropertyType;

constexpr unsigned from_any = FromExif | FromTags | FromMedia | FromPdf | FromOffice;
constexpr unsigned from_sound = FromTags | FromMedia;
constexpr unsigned from_document = FromPdf | FromOffice;

constexpr PropertyRow rows[] = {
    {u"System.ItemNameDisplay", u"Name", Lpwstr, FromPath, Display::Plain},
    {u"System.FileName", u"Filename", Lpwstr, FromPath, Display::Plain},
    {u"System.FileExtension", u"File extension", Lpwstr, FromPath, Display::Plain},
    {u"System.ItemTypeText", u"Item type", Lpwstr, FromType, Display::Plain},
    {u"System.MIMEType", u"Content type", Lpwstr, FromType, Display::Plain},
    {u"System.Kind", u"Kind", StringVector, FromType, Display::Plain},
    {u"System.ItemPathDisplay", u"Path", Lpwstr, FromPath, Display::Plain},
    {u"System.ItemFolderPathDisplay", u"Folder path", Lpwstr, FromPath, Display::Plain},
    {u"System.ItemFolderNameDisplay", u"Folder name", Lpwstr, FromPath, Display::Plain},
    {u"System.Size", u"Size", UI8, FromFileSystem, Display::Size},
    {u"System.FileAllocationSize", u"Size on disk", UI8, FromFileSystem, Display::Size},
    {u"System.DateCreated", u"Date created", FileTime, FromFileSystem, Display::Moment},
    {u"System.DateModified", u"Date modified", FileTime, FromFileSystem, Display::Moment},
    {u"System.DateAccessed", u"Date accessed", FileTime, FromFileSystem, Display::Moment},
    {u"System.FileAttributes", u"Attributes", UI4, FromFileSystem, Display::Attributes},
    {u"System.FileOwner", u"Owner", Lpwstr, FromFileSystem, Display::Plain},
    {u"System.IsFolder", u"Is a folder", Bool, FromFileSystem, Display::YesNo},
    {u"System.IsEncrypted", u"Encrypted", Bool, FromFileSystem, Display::YesNo},

    {u"System.Title", u"Title", Lpwstr, from_any, Display::Plain},
    {u"System.Subject", u"Subject", Lpwstr, from_any, Display::Plain},
    {u"System.Author", u"Authors", StringVector, from_any, Display::Plain},
    {u"System.Keywords", u"Tags", StringVector, from_any, Display::Plain},
    {u"System.Comment", u"Comments", Lpwstr, from_any, Display::Plain},
    {u"System.Copyright", u"Copyright", Lpwstr, from_any, Display::Plain},
    {u"System.Rating", u"Rating", UI4, FromExif | FromTags | FromMedia, Display::Stars},
    {u"System.ApplicationName", u"Program name", Lpwstr, from_any, Display::Plain},
    {u"System.Language", u"Language", Lpwstr, from_any, Display::Plain},
    {u"System.Company", u"Company", Lpwstr, FromOffice, Display::Plain},
    {u"System.Category", u"Categories", StringVector, FromOffice, Display::Plain},

    {u"System.Image.Dimensions", u"Dimensions", Lpwstr, FromImage, Display::Plain},
    {u"System.Image.HorizontalSize", u"Width", UI4, FromImage, Display::Pixels},
    {u"System.Image.VerticalSize", u"Height", UI4, FromImage, Display::Pixels},
    {u"System.Image.BitDepth", u"Bit depth", UI4, FromImage, Display::Plain},
    {u"System.Image.HorizontalResolution", u"Horizontal resolution", R8, FromExif, Display::Resolution},
    {u"System.Image.VerticalResolution", u"Vertical resolution", R8, FromExif, Display::Resolution},
    {u"System.Image.ResolutionUnit", u"Resolution unit", I2, FromExif, Display::ResolutionUnit},
    {u"System.Image.ColorSpace", u"Color representation", UI2, FromExif, Display::ColorSpace},

    {u"System.Photo.DateTaken", u"Date taken", FileTime, FromExif, Display::Moment},
    {u"System.Photo.CameraManufacturer", u"Camera maker", Lpwstr, FromExif, Display::Plain},
    {u"System.Photo.CameraModel", u"Camera model", Lpwstr, FromExif, Display::Plain},
    {u"System.Photo.CameraSerialNumber", u"Camera serial number", Lpwstr, FromExif, Display::Plain},
    {u"System.Photo.LensManufacturer", u"Lens maker", Lpwstr, FromExif, Display::Plain},
    {u"System.Photo.LensModel", u"Lens model", Lpwstr, FromExif, Display::Plain},
    {u"System.Photo.FNumber", u"F-stop", R8, FromExif, Display::FNumber},
    {u"System.Photo.ExposureTime", u"Exposure time", R8, FromExif, Display::Seconds},
    {u"System.Photo.ISOSpeed", u"ISO speed", UI2, FromExif, Display::Iso},
    {u"System.Photo.ExposureBias", u"Exposure bias", R8, FromExif, Display::Steps},
    {u"System.Photo.ExposureProgram", u"Exposure program", UI4, FromExif, Display::Program},
    {u"System.Photo.FocalLength", u"Focal length", R8, FromExif, Display::Millimetres},
    {u"System.Photo.FocalLengthInFilm", u"35mm focal length", UI2, FromExif, Display::Millimetres},
    {u"System.Photo.Aperture", u"Aperture", R8, FromExif, Display::ApexAperture},
    {u"System.Photo.MaxAperture", u"Max aperture", R8, FromExif, Display::ApexAperture},
    {u"System.Photo.ShutterSpeed", u"Shutter speed", R8, FromExif, Display::ApexSpeed},
    {u"System.Photo.MeteringMode", u"Metering mode", UI2, FromExif, Display::Metering},
    {u"System.Photo.Flash", u"Flash mode", UI1, FromExif, Display::Flash},
    {u"System.Photo.LightSource", u"Light source", UI4, FromExif, Display::Light},
    {u"System.Photo.WhiteBalance", u"White balance", UI4, FromExif, Display::WhiteBalance},
    {u"System.Photo.SubjectDistance", u"Subject distance", R8, FromExif, Display::Metres},
    {u"System.Photo.DigitalZoom", u"Digital zoom", R8, FromExif, Display::Number},
    {u"System.Photo.Orientation", u"Orientation", UI2, FromExif, Display::Orientation},
    {u"System.Photo.EXIFVersion", u"EXIF version", Lpwstr, FromExif, Display::Plain},
    {u"System.GPS.LatitudeDecimal", u"Latitude", R8, FromExif, Display::Plain},
    {u"System.GPS.LongitudeDecimal", u"Longitude", R8, FromExif, Display::Plain},
    {u"System.GPS.Altitude", u"Altitude", R8, FromExif, Display::Metres},

    {u"System.Media.Duration", u"Length", UI8, from_sound, Display::Duration},
    {u"System.Media.Year", u"Year", UI4, from_sound, Display::Plain},
    {u"System.Media.SubTitle", u"Subtitle", Lpwstr, from_sound, Display::Plain},
    {u"System.Media.Publisher", u"Publisher", Lpwstr, from_sound, Display::Plain},
    {u"System.Media.EncodedBy", u"Encoded by", Lpwstr, from_sound, Display::Plain},
    {u"System.Media.DateEncoded", u"Media created", FileTime, FromMedia, Display::Moment},

    {u"System.Music.Artist", u"Contributing artists", StringVector, from_sound, Display::Plain},
    {u"System.Music.DisplayArtist", u"Artist", Lpwstr, from_sound, Display::Plain},
    {u"System.Music.AlbumTitle", u"Album", Lpwstr, from_sound, Display::Plain},
    {u"System.Music.AlbumArtist", u"Album artist", Lpwstr, from_sound, Display::Plain},
    {u"System.Music.TrackNumber", u"#", UI4, from_sound, Display::Plain},
    {u"System.Music.DiscNumber", u"Disc", UI4, from_sound, Display::Plain},
    {u"System.Music.PartOfSet", u"Part of set", Lpwstr, from_sound, Display::Plain},
    {u"System.Music.Genre", u"Genre", StringVector, from_sound, Display::Plain},
    {u"System.Music.Composer", u"Composers", StringVector, from_sound, Display::Plain},
    {u"System.Music.Conductor", u"Conductors", StringVector, from_sound, Display::Plain},
    {u"System.Music.BeatsPerMinute", u"Beats-per-minute", Lpwstr, from_sound, Display::Plain},
    {u"System.Music.InitialKey", u"Initial key", Lpwstr, from_sound, Display::Plain},
    {u"System.Music.Mood", u"Mood", Lpwstr, from_sound, Display::Plain},
    {u"System.Music.Lyrics", u"Lyrics", Lpwstr, from_sound, Display::Plain},

    {u"System.Audio.EncodingBitrate", u"Bit rate", UI4, from_sound, Display::BitRate},
    {u"System.Audio.SampleRate", u"Audio sample rate", UI4, from_sound, Display::SampleRate},
    {u"System.Audio.SampleSize", u"Audio sample size", UI4, from_sound, Display::Bits},
    {u"System.Audio.ChannelCount", u"Channels", UI4, from_sound, Display::Channels},
    {u"System.Audio.Format", u"Audio format", Lpwstr, from_sound, Display::Plain},
    {u"System.Audio.IsVariableBitRate", u"Is VBR", Bool, FromMedia, Display::YesNo},

    {u"System.Video.FrameWidth", u"Frame width", UI4, FromFilm, Display::Pixels},
    {u"System.Video.FrameHeight", u"Frame height", UI4, FromFilm, Display::Pixels},
    {u"System.Video.FrameRate", u"Frame rate", UI4, FromFilm, Display::FrameRate},
    {u"System.Media.FrameCount", u"Frame count", UI4, FromFilm, Display::Number},
    {u"System.Video.EncodingBitrate", u"Data rate", UI4, FromFilm, Display::BitRate},
    {u"System.Video.TotalBitrate", u"Total bitrate", UI4, FromFilm, Display::BitRate},
    {u"System.Video.Compression", u"Video compression", Lpwstr, FromFilm, Display::Plain},
    {u"System.Video.FourCC", u"FourCC", UI4, FromFilm, Display::FourCc},
    {u"System.Video.Orientation", u"Video orientation", UI4, FromFilm, Display::Degrees},
    {u"System.Video.Director", u"Directors", StringVector, FromFilm, Display::Plain},

    {u"System.Document.PageCount", u"Pages", I4, from_document, Display::Number},
    {u"System.Document.SlideCount", u"Slides", I4, FromOffice, Display::Number},
    {u"System.Document.WordCount", u"Word count", I4, FromOffice, Display::Number},
    {u"System.Document.LineCount", u"Line count", I4, FromOffice, Display::Number},
    {u"System.Document.CharacterCount", u"Character count", I4, FromOffice, Display::Number},
    {u"System.Document.LastAuthor", u"Last saved by", Lpwstr, FromOffice, Display::Plain},
    {u"System.Document.RevisionNumber", u"Revision number", Lpwstr, FromOffice, Display::Plain},
    {u"System.Document.DateCreated", u"Content created", FileTime, from_document, Display::Moment},
    {u"System.Document.DateSaved", u"Date last saved", FileTime, from_document, Display::Moment},
    {u"System.Document.TotalEditingTime", u"Total editing time", UI8, FromOffice, Display::Duration},
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
