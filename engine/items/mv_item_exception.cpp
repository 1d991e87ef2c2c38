#include "engine/items/mv_item_exception.h"

namespace {

const char* message_of(MVItemError reason)
{
    switch (reason) {
    case MVItemError::PathNotAbsolute: return "Path not absolute";
    case MVItemError::FileNotFound: return "File not found";
    case MVItemError::RootFolderError: return "Root folder error";
    case MVItemError::SubfolderIsNoFolder: return "Path subfolder is not a folder";
    }
    return "";
}

}

MVItemException::MVItemException(std::u16string path, MVItemError reason)
    : path_(std::move(path)), reason_(reason), message_(message_of(reason))
{}
