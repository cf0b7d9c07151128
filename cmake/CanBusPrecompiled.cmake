# One precompiled header, of Qt Core and the standard library, for all programs, libraries and tests of the desk: most
# of what compiling them takes is reading those. Off unless asked for: a build without it sees an include that is
# missing (the lint is one), and compiler caches want none.

option(CANBUS_PRECOMPILE "Precompile the headers that most sources read" OFF)

if(CANBUS_PRECOMPILE)
  file(WRITE ${CMAKE_BINARY_DIR}/precompiled.cpp "")
  add_library(canbus_precompiled STATIC ${CMAKE_BINARY_DIR}/precompiled.cpp)
  target_compile_features(canbus_precompiled PRIVATE cxx_std_17)
  set_target_properties(canbus_precompiled PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
  canbus_target_defaults(canbus_precompiled)
  target_link_libraries(canbus_precompiled PRIVATE CanBus::QtCore)
  target_precompile_headers(canbus_precompiled PRIVATE
    <QByteArray> <QCoreApplication> <QDateTime> <QDir> <QElapsedTimer> <QFile> <QFileInfo> <QHash> <QJsonArray>
    <QJsonDocument> <QJsonObject> <QObject> <QQueue> <QSet> <QSocketNotifier> <QString> <QStringList> <QTimer>
    <QVariant> <QVector> <algorithm> <cstring> <functional> <memory>)
endif()

function(canbus_use_precompiled target)
  if(CANBUS_PRECOMPILE)
    target_precompile_headers(${target} REUSE_FROM canbus_precompiled)
  endif()
endfunction()
