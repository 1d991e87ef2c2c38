# The libraries behind file properties. Each can be switched off; the properties that it reads are absent then.
option(VELLUMARK_WITH_QTGUI "Read the dimensions of images (Qt Gui)" ON)
option(VELLUMARK_WITH_EXIF "Read what cameras write into photos (libexif)" ON)
option(VELLUMARK_WITH_TAGLIB "Read the tags of music (TagLib)" ON)
option(VELLUMARK_WITH_MEDIAINFO "Read the properties of films (MediaInfo)" ON)
option(VELLUMARK_WITH_QPDF "Read the properties of PDF documents (qpdf)" ON)
option(VELLUMARK_WITH_LIBZIP "Read the properties of office documents (libzip)" ON)

if(VELLUMARK_WITH_QTGUI)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Gui)
endif()

function(find_metadata_library option module)
  if(${option})
    pkg_check_modules(${module} REQUIRED IMPORTED_TARGET GLOBAL ${module})
  endif()
endfunction()

find_metadata_library(VELLUMARK_WITH_EXIF libexif)
find_metadata_library(VELLUMARK_WITH_TAGLIB taglib)
find_metadata_library(VELLUMARK_WITH_QPDF libqpdf)
find_metadata_library(VELLUMARK_WITH_LIBZIP libzip)

# Debian's libmediainfo.pc names folders of packages that it doesn't depend on, which CMake refuses.
if(VELLUMARK_WITH_MEDIAINFO)
  find_path(MEDIAINFO_INCLUDE_DIR MediaInfo/MediaInfo.h REQUIRED)
  find_library(MEDIAINFO_LIBRARY mediainfo REQUIRED)
  find_library(ZEN_LIBRARY zen REQUIRED)
  add_library(metadata_mediainfo INTERFACE)
  target_include_directories(metadata_mediainfo SYSTEM INTERFACE ${MEDIAINFO_INCLUDE_DIR})
  target_compile_definitions(metadata_mediainfo INTERFACE UNICODE)
  target_link_libraries(metadata_mediainfo INTERFACE ${MEDIAINFO_LIBRARY} ${ZEN_LIBRARY})
endif()

# 1 for a build that reads all properties there are.
set(VELLUMARK_HAS_ALL_METADATA 1)
foreach(library QTGUI EXIF TAGLIB MEDIAINFO QPDF LIBZIP)
  if(NOT VELLUMARK_WITH_${library})
    set(VELLUMARK_HAS_ALL_METADATA 0)
  endif()
endforeach()
