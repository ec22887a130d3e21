# Debian ships the engine without a package file: Irrlicht::Irrlicht with its headers as system headers.
find_path(IRRLICHT_INCLUDE_DIR irrlicht.h PATH_SUFFIXES irrlicht)
find_library(IRRLICHT_LIBRARY Irrlicht)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Irrlicht DEFAULT_MSG IRRLICHT_LIBRARY IRRLICHT_INCLUDE_DIR)
if(Irrlicht_FOUND AND NOT TARGET Irrlicht::Irrlicht)
  add_library(Irrlicht::Irrlicht UNKNOWN IMPORTED)
  set_target_properties(Irrlicht::Irrlicht PROPERTIES IMPORTED_LOCATION ${IRRLICHT_LIBRARY}
                        INTERFACE_INCLUDE_DIRECTORIES ${IRRLICHT_INCLUDE_DIR})
endif()
