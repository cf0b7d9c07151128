# The plug-in alone, against a head unit maker's SDK: CANBUS_ORB_SDK names a folder with include/ (the framework's
# headers and qextserialport.h) and lib/ (libOrbCommons, libqextserialport). It is the only place that is searched: the
# build machine may have libraries of these names, and a toolchain's root path knows nothing of the SDK.

find_path(ORBCOMMONS_INCLUDE_DIR orbapplication.h
  PATHS ${CANBUS_ORB_SDK}/include PATH_SUFFIXES orbcommons OrbCommons NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
find_library(ORBCOMMONS_LIBRARY OrbCommons
  PATHS ${CANBUS_ORB_SDK}/lib PATH_SUFFIXES ${CMAKE_LIBRARY_ARCHITECTURE} NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
find_path(QEXTSERIALPORT_INCLUDE_DIR qextserialport.h
  PATHS ${CANBUS_ORB_SDK}/include PATH_SUFFIXES orbcommons QtExtSerialPort qextserialport
  NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
find_library(QEXTSERIALPORT_LIBRARY NAMES qextserialport QtExtSerialPort Qt5ExtSerialPort
  PATHS ${CANBUS_ORB_SDK}/lib PATH_SUFFIXES ${CMAKE_LIBRARY_ARCHITECTURE} NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)

foreach(piece ORBCOMMONS_INCLUDE_DIR ORBCOMMONS_LIBRARY QEXTSERIALPORT_INCLUDE_DIR QEXTSERIALPORT_LIBRARY)
  if(NOT ${piece})
    message(FATAL_ERROR "The SDK in ${CANBUS_ORB_SDK} lacks ${piece}; set it by hand if it lies elsewhere")
  endif()
endforeach()

add_library(CanBus::OrbCommons INTERFACE IMPORTED)
# The headers with the Qt generation and the colours are the project's own, not the maker's.
target_include_directories(CanBus::OrbCommons INTERFACE
  ${ORBCOMMONS_INCLUDE_DIR} ${PROJECT_SOURCE_DIR}/platform/qtcompat)
target_link_libraries(CanBus::OrbCommons INTERFACE ${ORBCOMMONS_LIBRARY} CanBus::QtWidgets)
add_library(CanBus::QextSerialPort INTERFACE IMPORTED)
target_include_directories(CanBus::QextSerialPort INTERFACE ${QEXTSERIALPORT_INCLUDE_DIR})
target_link_libraries(CanBus::QextSerialPort INTERFACE ${QEXTSERIALPORT_LIBRARY})
