# BlueZ's library, as Bluetooth::Bluetooth.
find_path(BLUETOOTH_INCLUDE_DIR bluetooth/bluetooth.h)
find_library(BLUETOOTH_LIBRARY bluetooth)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Bluetooth DEFAULT_MSG BLUETOOTH_LIBRARY BLUETOOTH_INCLUDE_DIR)
if(Bluetooth_FOUND AND NOT TARGET Bluetooth::Bluetooth)
  add_library(Bluetooth::Bluetooth UNKNOWN IMPORTED)
  set_target_properties(Bluetooth::Bluetooth PROPERTIES IMPORTED_LOCATION ${BLUETOOTH_LIBRARY}
                        INTERFACE_INCLUDE_DIRECTORIES ${BLUETOOTH_INCLUDE_DIR})
endif()
