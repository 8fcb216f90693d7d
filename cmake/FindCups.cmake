# libcups, which brings no pkg-config file in Debian 12. Defines Cups::Cups.
# ppd.h marks every call deprecated, though no other interface reads PPD files; who links this target
# uses it on purpose. Qt's own deprecated calls stay errors through QT_DISABLE_DEPRECATED_BEFORE.
find_path(CUPS_INCLUDE_DIR cups/ppd.h)
find_library(CUPS_LIBRARY cups)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Cups REQUIRED_VARS CUPS_LIBRARY CUPS_INCLUDE_DIR)
if(CUPS_FOUND AND NOT TARGET Cups::Cups)
    add_library(Cups::Cups UNKNOWN IMPORTED)
    set_target_properties(Cups::Cups PROPERTIES
        IMPORTED_LOCATION "${CUPS_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${CUPS_INCLUDE_DIR}"
        INTERFACE_COMPILE_OPTIONS -Wno-deprecated-declarations)
endif()
set(Cups_FOUND ${CUPS_FOUND})
