"""The stored commands that are measured, each in a commands file of its own."""

import json


def name():
    return {"item-type": "name", "name-type": "full-name"}


def text(value):
    return {"item-type": "text", "text": value}


def host_path():
    return {"item-type": "path", "path-type": "path-no-drive", "limit-num-parents": False, "separator-text": "/"}


def size():
    return {"item-type": "size", "size-format": "bytes", "add-thousands-separator": False}


def iso_date():
    return {"item-type": "date", "dateType": "modified", "dateFormat": "iso-date-time", "addLeadingZeros": False}


def checksum(kind):
    return {"item-type": "checksum", "checksum-type": kind, "uppercase": False}


def property_text(name):
    return {"item-type": "property", "property-name": name}


def property_date(name):
    return {"item-type": "property", "property-name": name, "custom-format": True, "value-type": "datetime",
            "date-format": "iso-date-time", "add-leading-zeros": True}


def folder_contents(kind, indent):
    return {"item-type": kind, "indentText": indent, "startText": "\n", "endText": ""}


def store(workspace, title, parts, separator="\n", end="", from_folders=False, folder_parts=None):
    """Writes the file and returns its path."""
    command = {"commandType": "Vellumark", "name": title, "separator": separator, "startText": "", "endText": end,
               "sortOrder": "as-selected", "noStartEndTextIfOneItem": False, "fileParts": parts,
               "addFilesFromFolders": from_folders, "limitFolderDepth": False, "showUsingDefaultRules": True,
               "showInMenu": True}
    if folder_parts is not None:
        command["folderParts"] = folder_parts
    path = workspace.folder / f"{title}.json"
    path.write_text(json.dumps({"menuCommands": [command], "commandsLibrary": [], "extensionsPresets": []}))
    return path
