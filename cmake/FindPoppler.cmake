# Poppler's interface for Qt 6, found as any other library so that no pkg-config is needed. Defines
# Poppler::Qt6.
find_path(POPPLER_QT6_INCLUDE_DIR poppler-qt6.h PATH_SUFFIXES poppler/qt6)
find_library(POPPLER_QT6_LIBRARY poppler-qt6)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Poppler
    REQUIRED_VARS POPPLER_QT6_LIBRARY POPPLER_QT6_INCLUDE_DIR)
if(Poppler_FOUND AND NOT TARGET Poppler::Qt6)
    add_library(Poppler::Qt6 UNKNOWN IMPORTED)
    set_target_properties(Poppler::Qt6 PROPERTIES
        IMPORTED_LOCATION "${POPPLER_QT6_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${POPPLER_QT6_INCLUDE_DIR}")
endif()
