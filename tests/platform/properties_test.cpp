#include "platform/locale_format.h"
#include "platform/paths.h"
#include "platform/properties.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <thread>

using platform::FileProperties;
using platform::PropertyType;

namespace {

std::u16string sample(std::string_view name)
{
    return platform::from_host_path(std::string(SAMPLES_FOLDER "/") + std::string(name));
}

std::string utf8(std::u16string_view text)
{
    std::string bytes;
    platform::append_host_name(bytes, text);
    return bytes;
}

/// "raw | shown", or the one when both are the same; "-" when absent.
std::string both(FileProperties& file, std::u16string_view name)
{
    const auto value = file.value(name);
    const auto shown = file.display_text(name);
    if (!value || !shown)
        return value.has_value() == shown.has_value() ? "-" : "only one of both";
    const std::string raw = utf8(platform::to_text(*value).value_or(u"?"));
    return raw == utf8(*shown) ? raw : raw + " | " + utf8(*shown);
}

struct Row {
    const char* file;
    const char* expected;
    std::u16string_view name;
};

// Moments are shown in the user's locale and zone, so these have a test of their own.
const Row rows[] = {
    {"Photos/Harbour.jpg", "Harbour.jpg", u"FileName"},
    {"Photos/Harbour.jpg", ".jpg", u"FileExtension"},
    {"Photos/Harbour.jpg", "JPEG image", u"ItemTypeText"},
    {"Photos/Harbour.jpg", "image/jpeg", u"MIMEType"},
    {"Photos/Harbour.jpg", "picture", u"Kind"},
    {"Photos/Harbour.jpg", "Photos", u"ItemFolderNameDisplay"},
    {"Photos/Harbour.jpg", "3130 | 3.06 KB", u"Size"},
    {"Photos/Harbour.jpg", "0 | No", u"IsFolder"},
    {"Photos/Harbour.jpg", "Harbour at dusk — 港", u"Title"},
    {"Photos/Harbour.jpg", "Boats", u"Subject"},
    {"Photos/Harbour.jpg", "Zoë Marsh", u"Author"},
    {"Photos/Harbour.jpg", "harbour; evening; sea", u"Keywords"},
    {"Photos/Harbour.jpg", "Made of a test signal", u"Comment"},
    {"Photos/Harbour.jpg", "Public domain", u"Copyright"},
    {"Photos/Harbour.jpg", "75 | 4 stars", u"Rating"},
    {"Photos/Harbour.jpg", "Sample Maker 1.0", u"ApplicationName"},
    {"Photos/Harbour.jpg", "80 x 60", u"Image.Dimensions"},
    {"Photos/Harbour.jpg", "80 | 80 pixels", u"Image.HorizontalSize"},
    {"Photos/Harbour.jpg", "60 | 60 pixels", u"Image.VerticalSize"},
    {"Photos/Harbour.jpg", "24", u"Image.BitDepth"},
    {"Photos/Harbour.jpg", "300 | 300 dpi", u"Image.HorizontalResolution"},
    {"Photos/Harbour.jpg", "300 | 300 dpi", u"Image.VerticalResolution"},
    {"Photos/Harbour.jpg", "2 | Inches", u"Image.ResolutionUnit"},
    {"Photos/Harbour.jpg", "1 | sRGB", u"Image.ColorSpace"},
    {"Photos/Harbour.jpg", "Vellumark Optics", u"Photo.CameraManufacturer"},
    {"Photos/Harbour.jpg", "VO-1 Sample", u"Photo.CameraModel"},
    {"Photos/Harbour.jpg", "SN-0042", u"Photo.CameraSerialNumber"},
    {"Photos/Harbour.jpg", "Vellumark Glass", u"Photo.LensManufacturer"},
    {"Photos/Harbour.jpg", "50mm F2", u"Photo.LensModel"},
    {"Photos/Harbour.jpg", "2.8 | f/2.8", u"Photo.FNumber"},
    {"Photos/Harbour.jpg", "0.004 | 1/250 sec.", u"Photo.ExposureTime"},
    {"Photos/Harbour.jpg", "400 | ISO-400", u"Photo.ISOSpeed"},
    {"Photos/Harbour.jpg", "-0.3333333333333333 | -0.3 step", u"Photo.ExposureBias"},
    {"Photos/Harbour.jpg", "3 | Aperture priority", u"Photo.ExposureProgram"},
    {"Photos/Harbour.jpg", "50 | 50 mm", u"Photo.FocalLength"},
    {"Photos/Harbour.jpg", "75 | 75 mm", u"Photo.FocalLengthInFilm"},
    {"Photos/Harbour.jpg", "2.971 | f/2.8", u"Photo.Aperture"},
    {"Photos/Harbour.jpg", "2 | f/2", u"Photo.MaxAperture"},
    {"Photos/Harbour.jpg", "7.966 | 1/250 sec.", u"Photo.ShutterSpeed"},
    {"Photos/Harbour.jpg", "5 | Pattern", u"Photo.MeteringMode"},
    {"Photos/Harbour.jpg", "16 | No flash, compulsory", u"Photo.Flash"},
    {"Photos/Harbour.jpg", "1 | Daylight", u"Photo.LightSource"},
    {"Photos/Harbour.jpg", "0 | Auto", u"Photo.WhiteBalance"},
    {"Photos/Harbour.jpg", "2.5 | 2.5 m", u"Photo.SubjectDistance"},
    {"Photos/Harbour.jpg", "1.5", u"Photo.DigitalZoom"},
    {"Photos/Harbour.jpg", "6 | Rotate 270 degrees", u"Photo.Orientation"},
    {"Photos/Harbour.jpg", "0232", u"Photo.EXIFVersion"},
    {"Photos/Harbour.jpg", "-33.859967", u"GPS.LatitudeDecimal"},
    {"Photos/Harbour.jpg", "151.21115", u"GPS.LongitudeDecimal"},
    {"Photos/Harbour.jpg", "34.5 | 34.5 m", u"GPS.Altitude"},
    {"Photos/IMG_0001.png", "image/png", u"MIMEType"},
    {"Photos/IMG_0001.png", "40 x 30", u"Image.Dimensions"},
    {"Photos/IMG_0001.png", "40 | 40 pixels", u"Image.HorizontalSize"},
    {"Photos/IMG_0001.png", "30 | 30 pixels", u"Image.VerticalSize"},
    {"Photos/IMG_0001.png", "24", u"Image.BitDepth"},
    {"Sounds/Morning Bell.mp3", "Morning Bell.mp3", u"FileName"},
    {"Sounds/Morning Bell.mp3", ".mp3", u"FileExtension"},
    {"Sounds/Morning Bell.mp3", "MP3 audio", u"ItemTypeText"},
    {"Sounds/Morning Bell.mp3", "audio/mpeg", u"MIMEType"},
    {"Sounds/Morning Bell.mp3", "music", u"Kind"},
    {"Sounds/Morning Bell.mp3", "Sounds", u"ItemFolderNameDisplay"},
    {"Sounds/Morning Bell.mp3", "8705 | 8.5 KB", u"Size"},
    {"Sounds/Morning Bell.mp3", "0 | No", u"IsFolder"},
    {"Sounds/Morning Bell.mp3", "Morning Bell", u"Title"},
    {"Sounds/Morning Bell.mp3", "The Sample Makers", u"Author"},
    {"Sounds/Morning Bell.mp3", "A sine of 440 Hz", u"Comment"},
    {"Sounds/Morning Bell.mp3", "Public domain", u"Copyright"},
    {"Sounds/Morning Bell.mp3", "eng", u"Language"},
    {"Sounds/Morning Bell.mp3", "10450000 | 00:00:01", u"Media.Duration"},
    {"Sounds/Morning Bell.mp3", "2019", u"Media.Year"},
    {"Sounds/Morning Bell.mp3", "Ring Records", u"Media.Publisher"},
    {"Sounds/Morning Bell.mp3", "sample maker", u"Media.EncodedBy"},
    {"Sounds/Morning Bell.mp3", "The Sample Makers", u"Music.Artist"},
    {"Sounds/Morning Bell.mp3", "The Sample Makers", u"Music.DisplayArtist"},
    {"Sounds/Morning Bell.mp3", "Test Signals", u"Music.AlbumTitle"},
    {"Sounds/Morning Bell.mp3", "Various Bells", u"Music.AlbumArtist"},
    {"Sounds/Morning Bell.mp3", "3", u"Music.TrackNumber"},
    {"Sounds/Morning Bell.mp3", "1", u"Music.DiscNumber"},
    {"Sounds/Morning Bell.mp3", "1/2", u"Music.PartOfSet"},
    {"Sounds/Morning Bell.mp3", "Ambient", u"Music.Genre"},
    {"Sounds/Morning Bell.mp3", "Ada Ring", u"Music.Composer"},
    {"Sounds/Morning Bell.mp3", "96", u"Music.BeatsPerMinute"},
    {"Sounds/Morning Bell.mp3", "64000 | 64 kbps", u"Audio.EncodingBitrate"},
    {"Sounds/Morning Bell.mp3", "44100 | 44.1 kHz", u"Audio.SampleRate"},
    {"Sounds/Morning Bell.mp3", "2 | 2 (stereo)", u"Audio.ChannelCount"},
    {"Sounds/Morning Bell.mp3", "MPEG Audio", u"Audio.Format"},
    {"Sounds/Morning Bell.mp3", "0 | No", u"Audio.IsVariableBitRate"},
    {"Sounds/Evening Bell.flac", "music", u"Kind"},
    {"Sounds/Evening Bell.flac", "Evening Bell — 鐘", u"Title"},
    {"Sounds/Evening Bell.flac", "A sine of 220 Hz", u"Comment"},
    {"Sounds/Evening Bell.flac", "10000000 | 00:00:01", u"Media.Duration"},
    {"Sounds/Evening Bell.flac", "2020", u"Media.Year"},
    {"Sounds/Evening Bell.flac", "Ring Records", u"Media.Publisher"},
    {"Sounds/Evening Bell.flac", "30000 | 30 kbps", u"Audio.EncodingBitrate"},
    {"Sounds/Evening Bell.flac", "8000 | 8 kHz", u"Audio.SampleRate"},
    {"Sounds/Evening Bell.flac", "16 | 16 bit", u"Audio.SampleSize"},
    {"Sounds/Evening Bell.flac", "1 | 1 (mono)", u"Audio.ChannelCount"},
    {"Sounds/Evening Bell.flac", "FLAC", u"Audio.Format"},
    {"Sounds/Evening Bell.flac", "1 | Yes", u"Audio.IsVariableBitRate"},
    {"Sounds/Night Bell.ogg", "audio/x-vorbis+ogg", u"MIMEType"},
    {"Sounds/Night Bell.ogg", "Night Bell", u"Title"},
    {"Sounds/Night Bell.ogg", "Lavc libvorbis", u"ApplicationName"},
    {"Sounds/Night Bell.ogg", "10000000 | 00:00:01", u"Media.Duration"},
    {"Sounds/Night Bell.ogg", "3", u"Music.TrackNumber"},
    {"Sounds/Night Bell.ogg", "16000 | 16 kbps", u"Audio.EncodingBitrate"},
    {"Sounds/Night Bell.ogg", "44100 | 44.1 kHz", u"Audio.SampleRate"},
    {"Sounds/Night Bell.ogg", "1 | 1 (mono)", u"Audio.ChannelCount"},
    {"Sounds/Night Bell.ogg", "Vorbis", u"Audio.Format"},
    {"Sounds/Night Bell.ogg", "1 | Yes", u"Audio.IsVariableBitRate"},
    {"Sounds/bell.wav", "7500000 | 00:00:01", u"Media.Duration"},
    {"Sounds/bell.wav", "64000 | 64 kbps", u"Audio.EncodingBitrate"},
    {"Sounds/bell.wav", "8000 | 8 kHz", u"Audio.SampleRate"},
    {"Sounds/bell.wav", "8 | 8 bit", u"Audio.SampleSize"},
    {"Sounds/bell.wav", "1 | 1 (mono)", u"Audio.ChannelCount"},
    {"Sounds/bell.wav", "PCM", u"Audio.Format"},
    {"Sounds/bell.wav", "0 | No", u"Audio.IsVariableBitRate"},
    {"Films/Test Card.mp4", "Test Card.mp4", u"FileName"},
    {"Films/Test Card.mp4", ".mp4", u"FileExtension"},
    {"Films/Test Card.mp4", "MPEG-4 video", u"ItemTypeText"},
    {"Films/Test Card.mp4", "video/mp4", u"MIMEType"},
    {"Films/Test Card.mp4", "video", u"Kind"},
    {"Films/Test Card.mp4", "Films", u"ItemFolderNameDisplay"},
    {"Films/Test Card.mp4", "7606 | 7.43 KB", u"Size"},
    {"Films/Test Card.mp4", "0 | No", u"IsFolder"},
    {"Films/Test Card.mp4", "Test Card", u"Title"},
    {"Films/Test Card.mp4", "The Sample Makers", u"Author"},
    {"Films/Test Card.mp4", "Two quiet seconds", u"Comment"},
    {"Films/Test Card.mp4", "21280000 | 00:00:02", u"Media.Duration"},
    {"Films/Test Card.mp4", "2021", u"Media.Year"},
    {"Films/Test Card.mp4", "The Sample Makers", u"Music.Artist"},
    {"Films/Test Card.mp4", "The Sample Makers", u"Music.DisplayArtist"},
    {"Films/Test Card.mp4", "17000 | 17 kbps", u"Audio.EncodingBitrate"},
    {"Films/Test Card.mp4", "8000 | 8 kHz", u"Audio.SampleRate"},
    {"Films/Test Card.mp4", "16 | 16 bit", u"Audio.SampleSize"},
    {"Films/Test Card.mp4", "2 | 2 (stereo)", u"Audio.ChannelCount"},
    {"Films/Test Card.mp4", "AAC", u"Audio.Format"},
    {"Films/Test Card.mp4", "0 | No", u"Audio.IsVariableBitRate"},
    {"Films/Test Card.mp4", "64 | 64 pixels", u"Video.FrameWidth"},
    {"Films/Test Card.mp4", "48 | 48 pixels", u"Video.FrameHeight"},
    {"Films/Test Card.mp4", "25000 | 25 frames/second", u"Video.FrameRate"},
    {"Films/Test Card.mp4", "50", u"Media.FrameCount"},
    {"Films/Test Card.mp4", "4160 | 4 kbps", u"Video.EncodingBitrate"},
    {"Films/Test Card.mp4", "30424 | 30 kbps", u"Video.TotalBitrate"},
    {"Films/Test Card.mp4", "MPEG-4 Visual", u"Video.Compression"},
    {"Films/Test Card.mp4", "1983148141 | mp4v", u"Video.FourCC"},
    {"Films/Test Card.mp4", "0 | 0°", u"Video.Orientation"},
    {"Documents/Tide tables.pdf", "Tide tables.pdf", u"FileName"},
    {"Documents/Tide tables.pdf", ".pdf", u"FileExtension"},
    {"Documents/Tide tables.pdf", "PDF document", u"ItemTypeText"},
    {"Documents/Tide tables.pdf", "application/pdf", u"MIMEType"},
    {"Documents/Tide tables.pdf", "document", u"Kind"},
    {"Documents/Tide tables.pdf", "Documents", u"ItemFolderNameDisplay"},
    {"Documents/Tide tables.pdf", "718 | 718 bytes", u"Size"},
    {"Documents/Tide tables.pdf", "0 | No", u"IsFolder"},
    {"Documents/Tide tables.pdf", "Tide tables – 潮", u"Title"},
    {"Documents/Tide tables.pdf", "High and low water", u"Subject"},
    {"Documents/Tide tables.pdf", "Ada Ring; Zoë Marsh", u"Author"},
    {"Documents/Tide tables.pdf", "tide; sea", u"Keywords"},
    {"Documents/Tide tables.pdf", "Sample Maker", u"ApplicationName"},
    {"Documents/Tide tables.pdf", "en-GB", u"Language"},
    {"Documents/Tide tables.pdf", "2", u"Document.PageCount"},
    {"Documents/Report.docx", "Report.docx", u"FileName"},
    {"Documents/Report.docx", ".docx", u"FileExtension"},
    {"Documents/Report.docx", "Word 2007 document", u"ItemTypeText"},
    {"Documents/Report.docx", "application/vnd.openxmlformats-officedocument.wordprocessingml.document", u"MIMEType"},
    {"Documents/Report.docx", "document", u"Kind"},
    {"Documents/Report.docx", "Documents", u"ItemFolderNameDisplay"},
    {"Documents/Report.docx", "1897 | 1.85 KB", u"Size"},
    {"Documents/Report.docx", "0 | No", u"IsFolder"},
    {"Documents/Report.docx", "Harbour report", u"Title"},
    {"Documents/Report.docx", "Tides & boats", u"Subject"},
    {"Documents/Report.docx", "Ada Ring; Zoë Marsh", u"Author"},
    {"Documents/Report.docx", "tide; harbour", u"Keywords"},
    {"Documents/Report.docx", "First draft", u"Comment"},
    {"Documents/Report.docx", "Sample Maker", u"ApplicationName"},
    {"Documents/Report.docx", "en-GB", u"Language"},
    {"Documents/Report.docx", "Harbour Office", u"Company"},
    {"Documents/Report.docx", "Reports", u"Category"},
    {"Documents/Report.docx", "1", u"Document.PageCount"},
    {"Documents/Report.docx", "1234 | 1,234", u"Document.WordCount"},
    {"Documents/Report.docx", "90", u"Document.LineCount"},
    {"Documents/Report.docx", "5678 | 5,678", u"Document.CharacterCount"},
    {"Documents/Report.docx", "Zoë Marsh", u"Document.LastAuthor"},
    {"Documents/Report.docx", "7", u"Document.RevisionNumber"},
    {"Documents/Report.docx", "25200000000 | 00:42:00", u"Document.TotalEditingTime"},
    {"Documents/Notes.odt", "Notes.odt", u"FileName"},
    {"Documents/Notes.odt", ".odt", u"FileExtension"},
    {"Documents/Notes.odt", "ODT document", u"ItemTypeText"},
    {"Documents/Notes.odt", "application/vnd.oasis.opendocument.text", u"MIMEType"},
    {"Documents/Notes.odt", "document", u"Kind"},
    {"Documents/Notes.odt", "Documents", u"ItemFolderNameDisplay"},
    {"Documents/Notes.odt", "1170 | 1.14 KB", u"Size"},
    {"Documents/Notes.odt", "0 | No", u"IsFolder"},
    {"Documents/Notes.odt", "Harbour notes", u"Title"},
    {"Documents/Notes.odt", "Boats", u"Subject"},
    {"Documents/Notes.odt", "Ada Ring", u"Author"},
    {"Documents/Notes.odt", "tide; rope", u"Keywords"},
    {"Documents/Notes.odt", "Loose ends", u"Comment"},
    {"Documents/Notes.odt", "Sample Maker", u"ApplicationName"},
    {"Documents/Notes.odt", "en-GB", u"Language"},
    {"Documents/Notes.odt", "2", u"Document.PageCount"},
    {"Documents/Notes.odt", "345", u"Document.WordCount"},
    {"Documents/Notes.odt", "2100 | 2,100", u"Document.CharacterCount"},
    {"Documents/Notes.odt", "Zoë Marsh", u"Document.LastAuthor"},
    {"Documents/Notes.odt", "5", u"Document.RevisionNumber"},
    {"Documents/Notes.odt", "37230000000 | 01:02:03", u"Document.TotalEditingTime"},
    {"Documents", "Documents", u"FileName"},
    {"Documents", "folder", u"ItemTypeText"},
    {"Documents", "inode/directory", u"MIMEType"},
    {"Documents", "folder", u"Kind"},
    {"Documents", "samples", u"ItemFolderNameDisplay"},
    {"Documents", "1 | Yes", u"IsFolder"},
    {"Sounds/bell.wav", "-", u"Title"},
    {"Sounds/bell.wav", "-", u"Video.TotalBitrate"},
    {"Documents", "-", u"Size"},
    {"Photos/Harbour.jpg", "-", u"title"},
    {"Photos/Harbour.jpg", "-", u"Music.Artist"},
    {"gone.mp3", "-", u"FileName"},
};

/// What this build knows of a property of a sample: nothing, what stands here, or the like, when one of two libraries
/// that complete each other is missing.
enum class Known { Nothing, Partly, Wholly };

Known known(std::string_view file, std::u16string_view name)
{
    const std::u16string_view of_any_file[] = {u"FileName", u"FileExtension",         u"ItemTypeText", u"MIMEType",
                                               u"Kind",     u"ItemFolderNameDisplay", u"Size",         u"IsFolder"};
    const std::u16string_view of_header[] = {u"Image.Dimensions", u"Image.HorizontalSize", u"Image.VerticalSize",
                                             u"Image.BitDepth"};
    int libraries = 1, needed = 1;
    if (std::ranges::find(of_any_file, name) != std::end(of_any_file))
        return Known::Wholly;
    if (file.starts_with("Photos/"))
        libraries = std::ranges::find(of_header, name) != std::end(of_header) ? WITH_QTGUI : WITH_EXIF;
    else if (file.starts_with("Sounds/") || file.starts_with("Films/"))
        libraries = WITH_TAGLIB + WITH_MEDIAINFO, needed = 2;
    else if (file.starts_with("Documents/"))
        libraries = file.ends_with(".pdf") ? WITH_QPDF : WITH_LIBZIP;
    return libraries == needed ? Known::Wholly : libraries == 0 ? Known::Nothing : Known::Partly;
}

TEST(Properties, OfSamples)
{
    std::map<std::string, std::unique_ptr<FileProperties>> files;
    for (const auto& row : rows) {
        auto& file = files[row.file];
        if (!file)
            file = std::make_unique<FileProperties>(sample(row.file));
        const Known known_here = known(row.file, row.name);
        if (known_here == Known::Partly)
            continue;
        const std::string expected = known_here == Known::Wholly ? row.expected : "-";
        const std::u16string name = u"System." + std::u16string(row.name);
        EXPECT_EQ(both(*file, name), expected) << row.file << ": " << utf8(name);
        if (expected != "-") {
            const auto names = file->names();
            EXPECT_NE(std::ranges::find(names, name), names.end()) << row.file << ": " << utf8(name);
        }
    }
}

/// The local date and time by the platform's own texts; empty without a moment.
std::string moment_text(std::int64_t ticks)
{
    const auto time = platform::to_local_time(ticks);
    return time ? utf8(date_text(*time, platform::DateStyle::Short) + u" " + time_text(*time)) : "";
}

TEST(Properties, Moments)
{
    struct MomentRow {
        const char* file;
        std::u16string_view name;
        /// In UTC.
        const char* expected;
    };

    const MomentRow moments[] = {
        {"Photos/Harbour.jpg", u"System.Photo.DateTaken", "2024/03/05:13:02:11.250"},
        {"Films/Test Card.mp4", u"System.Media.DateEncoded", "2021/06/07:08:09:10.000"},
        {"Documents/Tide tables.pdf", u"System.Document.DateCreated", "2023/04/05:04:07:08.000"},
        {"Documents/Tide tables.pdf", u"System.Document.DateSaved", "2023/04/05:07:08:09.000"},
        {"Documents/Report.docx", u"System.Document.DateCreated", "2024/01/02:03:04:05.000"},
        {"Documents/Notes.odt", u"System.Document.DateSaved", "2023/02/03:04:05:06.500"},
    };
    for (const auto& row : moments) {
        if (known(row.file, row.name) != Known::Wholly)
            continue;
        FileProperties file(sample(row.file));
        const auto value = file.value(row.name);
        ASSERT_TRUE(value) << utf8(row.name);
        EXPECT_EQ(utf8(platform::to_text(*value).value_or(u"")), row.expected) << row.file << ": " << utf8(row.name);
        EXPECT_EQ(utf8(*file.display_text(row.name)), moment_text(std::get<platform::FileTimeValue>(*value).ticks));
    }
}

TEST(Properties, NamesAreThoseOfTheKind)
{
    struct NamesRow {
        const char* file;
        const char* groups;
    };

    // Runs of names by what stands between their first two dots; * where there is only one dot.
    const NamesRow names_rows[] = {
        {"Documents", "*"},
        {"stations.json", "*"},
        {"Photos/Harbour.jpg", "* Image Photo GPS"},
        {"Sounds/Morning Bell.mp3", "* Media Music Audio"},
        {"Films/Test Card.mp4", "* Media Music Audio Video Media Video"},
        {"Documents/Tide tables.pdf", "* Document"},
        {"gone.mp3", ""},
    };
    if (!(WITH_QTGUI && WITH_EXIF && WITH_TAGLIB && WITH_MEDIAINFO && WITH_QPDF && WITH_LIBZIP))
        GTEST_SKIP() << "only a build with all libraries offers all names";
    for (const auto& row : names_rows) {
        std::string groups, last;
        for (const auto& name : FileProperties(sample(row.file)).names()) {
            const std::string text = utf8(name).substr(7);
            const std::string group = text.find('.') == text.npos ? "*" : text.substr(0, text.find('.'));
            if (group != last)
                groups += (groups.empty() ? "" : " ") + group;
            last = group;
            EXPECT_NE(platform::property_type(name), PropertyType::Empty) << text;
            EXPECT_NE(platform::property_display_name(name), u"") << text;
        }
        EXPECT_EQ(groups, row.groups) << row.file;
    }
    const std::pair<const char*, std::u16string_view> never_had[] = {
        {"Documents", u"System.Size"},
        {"Photos/Harbour.jpg", u"System.Language"},
        {"Documents/Tide tables.pdf", u"System.Comment"},
        {"Sounds/bell.wav", u"System.Video.TotalBitrate"},
    };
    for (const auto& [file, name] : never_had) {
        const auto names = FileProperties(sample(file)).names();
        EXPECT_EQ(std::ranges::find(names, name), names.end()) << file << ": " << utf8(name);
    }
    EXPECT_EQ(platform::property_type(u"System.Music.Artist"), PropertyType::StringVector);
    EXPECT_EQ(platform::property_type(u"System.Photo.DateTaken"), PropertyType::FileTime);
    EXPECT_EQ(platform::property_type(u"System.None"), PropertyType::Empty);
}

/// A file's kind is told by its content where the name says nothing.
TEST(Properties, WithoutExtensionAndThroughLinks)
{
    const TempFolder folder;
    const std::string song = SAMPLES_FOLDER "/Sounds/Morning Bell.mp3", photo = SAMPLES_FOLDER "/Photos/Harbour.jpg";
    std::filesystem::copy_file(song, folder.host("song"));
    std::filesystem::copy_file(photo, folder.host("\xFF\\photo"));
    folder.make_link("link.mp3", "song");
    const auto text = [&folder](const char* name, std::u16string_view property) {
        FileProperties file(folder.path(name));
        return both(file, property);
    };
    EXPECT_EQ(text("song", u"System.Title"), WITH_TAGLIB || WITH_MEDIAINFO ? "Morning Bell" : "-");
    EXPECT_EQ(text("\xFF\\photo", u"System.Photo.CameraModel"), WITH_EXIF ? "VO-1 Sample" : "-");
    EXPECT_EQ(text("link.mp3", u"System.Title"), WITH_TAGLIB || WITH_MEDIAINFO ? "Morning Bell" : "-");
    EXPECT_EQ(text("link.mp3", u"System.Size"), "0 | 0 bytes");
}

/// What is no regular file has no content; to open a fifo would wait for ever.
TEST(Properties, OnlyRegularFilesAreOpened)
{
    const TempFolder folder;
    mkfifo(folder.host("fifo.mp3").c_str(), 0600);
    mkfifo(folder.host("fifo").c_str(), 0600);
    mkfifo(folder.host("fifo.mkv").c_str(), 0600);
    folder.make_folder("folder.jpg");
    folder.make_link("to fifo.docx", "fifo");
    folder.make_link("to nothing.pdf", "gone");
    folder.make_link("zero.png", "/dev/zero");
    folder.write("empty.mp4");
    for (const char* const name :
         {"fifo.mp3", "fifo", "fifo.mkv", "folder.jpg", "to fifo.docx", "to nothing.pdf", "zero.png", "empty.mp4"}) {
        FileProperties file(folder.path(name));
        EXPECT_EQ(both(file, u"System.Title"), "-") << name;
        EXPECT_EQ(both(file, u"System.Image.Dimensions"), "-") << name;
        EXPECT_EQ(both(file, u"System.Video.FrameWidth"), "-") << name;
        EXPECT_FALSE(file.names().empty()) << name;
    }
    const auto type_of = [&folder](const char* name) {
        FileProperties file(folder.path(name));
        return both(file, u"System.MIMEType") + ", " + both(file, u"System.ItemTypeText");
    };
    EXPECT_EQ(type_of("fifo"), "inode/fifo, pipe");
    EXPECT_EQ(type_of("fifo.mp3"), "inode/fifo, pipe");
    EXPECT_EQ(type_of("to nothing.pdf"), "inode/symlink, symbolic link");
    EXPECT_EQ(type_of("zero.png"), "inode/chardevice, character device");
    const auto names = FileProperties(folder.path("fifo.mp3")).names();
    EXPECT_EQ(std::ranges::find(names, u"System.Title"), names.end());
}

TEST(Properties, OnSeveralThreads)
{
    const auto texts_of_all = [] {
        std::string result;
        for (const auto& row : rows) {
            FileProperties file(sample(row.file));
            result += both(file, u"System." + std::u16string(row.name)) + "\n";
        }
        return result;
    };
    const std::string expected = texts_of_all();
    std::vector<std::string> results(4);
    {
        std::vector<std::jthread> threads;
        for (auto& result : results)
            threads.emplace_back([&] { result = texts_of_all(); });
    }
    for (const auto& result : results)
        EXPECT_EQ(result, expected);
}

}
