# SPDX-License-Identifier: Apache-2.0
# One precompiled header for all libraries. Off where users' programs are built, so that a file that
# forgets an include is found there.

option(OSTRIA_PRELUDE "Compile the headers that most libraries include once for all" OFF)
if(NOT OSTRIA_PRELUDE)
    return()
endif()
add_library(ostria_prelude OBJECT "${CMAKE_CURRENT_LIST_DIR}/prelude.cpp")
target_link_libraries(ostria_prelude PRIVATE ostria_compiler dlib_headers PkgConfig::ARAVIS
    Qt5::Core Qt5::Gui)
# GLib must come before Qt's keywords.
target_precompile_headers(ostria_prelude PRIVATE <arv.h>
    <QByteArray> <QCoreApplication> <QHash> <QImage> <QJsonObject> <QObject> <QRegularExpression>
    <QSharedPointer> <QString> <QStringList> <QTimer> <QVariant> <QVector>
    "${OSTRIA_DLIB_DOOR}"
    <algorithm> <array> <atomic> <cmath> <functional> <map> <memory> <mutex> <optional> <string> <vector>)
