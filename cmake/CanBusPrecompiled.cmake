# One precompiled header for each language standard, of Qt and the standard library: most of what compiling a source of
# this tree takes is reading those. Off unless asked for: a build without it, as people have who change things, sees an
# include that is missing, and compiler caches want none.

option(CANBUS_PRECOMPILE "Precompile the headers that most sources read" OFF)

set(canbus_core_headers <QByteArray> <QCoreApplication> <QDateTime> <QDir> <QElapsedTimer> <QFile> <QFileInfo> <QHash>
  <QObject> <QQueue> <QSet> <QSocketNotifier> <QString> <QStringList> <QTimer> <QVariant> <QVector> <algorithm>
  <cstring> <functional> <memory>)
set(canbus_widget_headers <QApplication> <QComboBox> <QEvent> <QLabel> <QLineEdit> <QMouseEvent> <QPainter>
  <QPushButton> <QScrollArea> <QStyleOption> <QTableView> <QVBoxLayout>)

# canbus_precompile(NAME STANDARD QT HEADERS ...): for targets of that C++ standard that link with that part of Qt.
function(canbus_precompile name standard qt)
  file(WRITE ${CMAKE_BINARY_DIR}/precompiled.cpp "")
  add_library(canbus_precompiled_${name} STATIC ${CMAKE_BINARY_DIR}/precompiled.cpp)
  set_target_properties(canbus_precompiled_${name} PROPERTIES
    AUTOMOC OFF AUTOUIC OFF AUTORCC OFF CXX_STANDARD ${standard})
  canbus_target_options(canbus_precompiled_${name})
  target_link_libraries(canbus_precompiled_${name} PRIVATE ${qt})
  target_precompile_headers(canbus_precompiled_${name} PRIVATE ${ARGN})
endfunction()

if(CANBUS_PRECOMPILE)
  canbus_precompile(target ${CMAKE_CXX_STANDARD} CanBus::QtWidgets ${canbus_core_headers} ${canbus_widget_headers})
  set_target_properties(canbus_precompiled_target PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  canbus_precompile(desk 17 CanBus::QtWidgets ${canbus_core_headers} ${canbus_widget_headers}
    <QJsonArray> <QJsonDocument> <QJsonObject>)
  canbus_precompile(core 17 CanBus::QtCore ${canbus_core_headers} <QJsonArray> <QJsonDocument> <QJsonObject>)
endif()

function(canbus_use_precompiled target name)
  if(CANBUS_PRECOMPILE)
    target_precompile_headers(${target} REUSE_FROM canbus_precompiled_${name})
  endif()
endfunction()
