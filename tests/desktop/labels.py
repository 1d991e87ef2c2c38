"""How the window says what is stored of a command. A row has the stored key, the kind of control and its label, and
where one of several is chosen their labels by stored values. Rows stand in the order of work, for some controls only
come by others."""

import json
import re

from program import FOLDER

CASES = {"Unchanged": "Unchanged", "UpperCase": "UPPERCASE", "LowerCase": "lowercase", "TitleCase": "Title Case",
         "SentenceCase": "Sentence case", "CamelCase": "camelCase", "PascalCase": "PascalCase",
         "SnakeCase": "snake_case", "SnakeCaseUpper": "SNAKE_CASE_UPPER", "KebabCase": "kebab-case",
         "KebabCaseUpper": "KEBAB-CASE-UPPER"}
SIZES = {"bytes": "Bytes", "kbytes": "Kilobytes", "mbytes": "Megabytes", "gbytes": "Gigabytes",
         "tbytes": "Terabytes", "auto": "Auto"}
DATES = {"short-date": "Short Date", "long-date": "Long Date", "short-date-time": "Short Date & Time",
         "long-date-time": "Long Date & Time", "iso-date-time": "YYYY-MM-DD HH:MM:SS",
         "iso-date-time-filename": "YYYY-MM-DD_HH-MM-SS", "year-4": "Year as YYYY", "year-2": "Year as YY",
         "month-full": "Month Name", "month-abr": "Month Name Abr.", "month-digits": "Month as MM",
         "date-digits": "Date as DD", "day-full": "Day Name", "day-abr": "Day Name Abr.",
         "day-0-6": "Day of Week 0 (Sunday) to 6 (Saturday)", "day-1-7": "Day of Week 1 (Monday) to 7 (Sunday)",
         "hour-24": "Hour, 24-Hour Clock", "hour-12": "Hour, 12-Hour Clock", "min": "Minutes as MM",
         "sec": "Seconds as SS", "am-pm": "AM/PM"}
ZEROS = "Add Leading Zeros to Make 2 Digits"
THOUSANDS = "Add Thousands Separator"
FOLDER_TEXTS = (("indentText", "text", "Indent:"), ("startText", "text", "Add to Start:"),
                ("endText", "text", "Add to End:"))

# By the type of the part: the chip's name, and the rows.
PARTS = {
    "text": ("Text", ("text", "text", "Enter text for this part")),
    "name": ("Name",
             ("name-type", "combo box", "Type:", {"full-name": "Name and Extension", "ext-only": "Extension Only",
                                                  "name-no-ext": "Name Only (No Extension)"}),
             ("case-type", "combo box", "Case:", CASES)),
    "path": ("Path",
             ("path-type", "combo box", "Type:",
              {"full-path": "Full Path", "path-to-parent-folder": "Path to Parent Folder Only",
               "path-no-drive": "Path Without Drive", "drive-only": "Drive Only",
               "drive-letter-only": "Drive Letter Only", "link-target": "Link Target"}),
             ("separator-text", "text", "Separator:"),
             ("limit-num-parents", "check box", "Limit Number of Parent Folders"),
             ("num-parents", "number", "Maximum Number of Parent Folders: "),
             ("case-type", "combo box", "Case:", CASES)),
    "size": ("File Size", ("size-format", "combo box", "Size Format:", SIZES),
             ("add-thousands-separator", "check box", THOUSANDS)),
    "date": ("Date",
             ("dateType", "combo box", "Date Type:", {"modified": "Last Modified Date", "created": "Created Date",
                                                      "accessed": "Last Accessed Date"}),
             ("dateFormat", "combo box", "Date Format:", DATES), ("addLeadingZeros", "check box", ZEROS)),
    "property": ("File Property",
                 ("property-name", "property", "Property"),
                 ("value-type", "choice", None,
                  {"numeric": "Customize Number Format", "datetime": "Customize Date Format",
                   "string": "Customize String Format", "boolean": "Customize Boolean Format",
                   "size": "Customize Size Format", "duration": "Customize Duration Format"}),
                 ("date-format", "combo box", "Date Format: ", DATES), ("add-leading-zeros", "check box", ZEROS),
                 ("case-type", "combo box", "Case: ", CASES),
                 ("boolean-format", "combo box", "Boolean Format: ",
                  {"yes-no": "Yes / No", "true-false": "True / False", "one-zero": "1 / 0"}),
                 ("size-format", "combo box", "Size Format: ", SIZES),
                 ("round-to-seconds", "check box", "Round to Nearest Second"),
                 ("add-thousands-separator", "check box", THOUSANDS)),
    "auto-number": ("Auto Number", ("start", "number", "Start:"), ("step", "number", "Step:"),
                    ("nDigits", "check box", "Add Leading Zeros"), ("nDigits", "number", "Digits Length:"),
                    ("addThousandsSeparator", "check box", THOUSANDS)),
    "folder-files": ("Files", *FOLDER_TEXTS),
    "folder-subfolders": ("Subfolders", *FOLDER_TEXTS),
    "checksum": ("Checksum",
                 ("checksum-type", "combo box", "Checksum Type:",
                  {"md5": "MD5", "sha1": "SHA-1", "sha256": "SHA-256", "sha512": "SHA-512", "crc32": "CRC32",
                   "xxhash64": "xxHash64"}),
                 ("uppercase", "check box", "Uppercase")),
}

# Rows by the section's place in the pane. One without a label is of the only such control there.
SECTIONS = (
    (),
    (("addFilesFromFolders", "check box", "Add Files From Folders"),
     ("limitFolderDepth", "check box", "Limit Folder Scan Depth: "),
     ("maxFolderDepth", "spin button", "Limit Folder Scan Depth: ")),
    (("separator", "text", "Items Separator"),),
    (("startText", "text", "At Start:"), ("endText", "text", "At End:"),
     ("noStartEndTextIfOneItem", "check box", "Don't Add If Only One Item Selected")),
    (("sortOrder", "combo box", None,
      {"as-selected": "As Selected", "name": "By Name (A-Z)", "name-rev": "By Name (Z-A)",
       "size": "By Size (smallest first)", "size-rev": "By Size (largest first)",
       "mod-date": "By Modified Date (oldest first)", "mod-date-rev": "By Modified Date (newest first)",
       "path-length": "By Path Length (shortest first)", "path-length-rev": "By Path Length (longest first)"}),),
    (("showUsingDefaultRules", "check box", "Use Default Rules for Command Settings"),
     ("showRule", "combo box", None,
      {f"{count}{kind}": f"{words} {kind} Selected" for kind in ("Item", "File", "Folder", "Link")
       for count, words in (("atLeastOne", "At Least One"), ("exactlyOne", "Exactly One"))}
      | {"moreThanOneItem": "More Than One Item Selected"})),
)


def filter_rows(kind):
    """Of the panel for "files" or "folders"."""
    return (("filterMode", "combo box", None, {"extensions": "Extensions", "wildcard": "Wildcard", "regex": "Regex"}),
            ("fileFilterPresetUuid", "combo box", "Preset:", presets()),
            ("filterPattern", "line", None),
            ("filterAction", "choice", None, {"include": f"Include only matching {kind}",
                                              "exclude": f"Exclude matching {kind}"}))


def presets():
    """Names by identifiers."""
    with open(FOLDER + "/VKDefaultPresets.json", encoding="utf-8") as file:
        return {preset["uuid"]: preset["name"] for preset in json.load(file)}


# Properties whose names in the window aren't the words of their own names.
PROPERTIES = {"CameraManufacturer": "Camera maker", "FNumber": "F-stop", "ISOSpeed": "ISO speed",
              "Flash": "Flash mode", "HorizontalSize": "Width", "VerticalSize": "Height", "Author": "Authors",
              "Keywords": "Tags", "Category": "Categories", "Comment": "Comments", "LatitudeDecimal": "Latitude",
              "LongitudeDecimal": "Longitude", "TrackNumber": "#", "DisplayArtist": "Artist", "AlbumTitle": "Album",
              "Duration": "Length", "Composer": "Composers", "Conductor": "Conductors", "Format": "Audio format",
              "EncodingBitrate": "Bit rate", "SampleRate": "Audio sample rate", "ChannelCount": "Channels",
              "Compression": "Video compression", "PageCount": "Pages", "LastAuthor": "Last saved by",
              "Document.DateCreated": "Content created", "DateSaved": "Date last saved"}


def property_label(name):
    """What stands in the table of properties."""
    last = name.rpartition(".")[2]
    words = re.sub("(?<=[a-z])[A-Z]", lambda capital: " " + capital[0].lower(), last)
    return PROPERTIES.get(name.removeprefix("System."), PROPERTIES.get(last, words))
