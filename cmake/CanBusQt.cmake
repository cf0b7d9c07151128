# One set of targets, whatever the Qt generation: CanBus::QtCore, CanBus::QtWidgets.

set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF) # no header that moc reads is generated, so moc need not wait for libraries
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_STANDARD_REQUIRED ON)

# What an installed target names in their place.
set(canbus_installed_qtcore Qt${CANBUS_QT_VERSION}::Core)
set(canbus_installed_qtwidgets Qt${CANBUS_QT_VERSION}::Widgets)

add_library(canbus_qtcore INTERFACE)
add_library(CanBus::QtCore ALIAS canbus_qtcore)
add_library(canbus_qtwidgets INTERFACE)
add_library(CanBus::QtWidgets ALIAS canbus_qtwidgets)

if(CANBUS_QT_VERSION EQUAL 4)
  set(CMAKE_CXX_STANDARD 11)
  find_package(Qt4 4.8 REQUIRED QtCore QtGui)
  set(canbus_installed_qtwidgets Qt4::QtGui)
  target_link_libraries(canbus_qtcore INTERFACE Qt4::QtCore)
  target_link_libraries(canbus_qtwidgets INTERFACE Qt4::QtGui)
elseif(CANBUS_QT_VERSION EQUAL 5 OR CANBUS_QT_VERSION EQUAL 6)
  if(CANBUS_QT_VERSION EQUAL 5)
    # C++11 holds for the plug-in and the framework on every Qt generation that allows it.
    set(CMAKE_CXX_STANDARD 11)
    set(canbus_qt_minimum 5.15)
  else()
    set(CMAKE_CXX_STANDARD 17)
    set(canbus_qt_minimum 6.2)
  endif()
  set(canbus_qt Qt${CANBUS_QT_VERSION})
  find_package(${canbus_qt} ${canbus_qt_minimum} REQUIRED COMPONENTS Core Gui Widgets)
  target_link_libraries(canbus_qtcore INTERFACE ${canbus_qt}::Core)
  target_link_libraries(canbus_qtwidgets INTERFACE ${canbus_qt}::Widgets)
else()
  message(FATAL_ERROR "CANBUS_QT_VERSION is ${CANBUS_QT_VERSION}; it takes 4, 5 or 6")
endif()
