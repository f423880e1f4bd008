# Headers of the toolkit and of GoogleTest that nearly every source needs, parsed once for all
# targets: two thirds of a build went into reading them again. A source still includes what it uses;
# the `tidy` preset builds without this and finds what is missing.
#
#   velkaro_precompile(TARGET)        for a target on Qt Widgets
#   velkaro_precompile(TARGET TESTS)  for a target that uses GoogleTest too

set(toolkit_headers
    <algorithm> <array> <functional> <memory> <optional> <utility> <vector>
    <QtCore/QCoreApplication> <QtCore/QDir> <QtCore/QFile> <QtCore/QFileInfo> <QtCore/QHash>
    <QtCore/QJsonArray> <QtCore/QJsonDocument> <QtCore/QJsonObject> <QtCore/QList> <QtCore/QLocale>
    <QtCore/QMap> <QtCore/QPointer> <QtCore/QString> <QtCore/QStringList> <QtCore/QTimer>
    <QtCore/QVariant> <QtGui/QImage> <QtGui/QPainter>
    <QtWidgets/QApplication> <QtWidgets/QBoxLayout> <QtWidgets/QCheckBox> <QtWidgets/QComboBox>
    <QtWidgets/QDialog> <QtWidgets/QLabel> <QtWidgets/QPushButton> <QtWidgets/QWidget>)

# Compilers refuse precompiled headers made under other options, so all users of one share these.
# (Qt Test's are not among them: its definitions differ from folder to folder.)
function(velkaro_add_precompiled_headers name)
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/${name}.cpp CONTENT "")
    add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/${name}.cpp)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;LIBRARIES")
    target_link_libraries(${name} PRIVATE velkaro_build_rules ${arg_LIBRARIES})
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

velkaro_add_precompiled_headers(velkaro-toolkit-headers
    HEADERS ${toolkit_headers} LIBRARIES Qt6::Widgets)
set(velkaro_toolkit_headers velkaro-toolkit-headers)

macro(velkaro_find_test_headers)
    find_package(GTest REQUIRED)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
    velkaro_add_precompiled_headers(velkaro-test-headers
        HEADERS ${toolkit_headers} <QtCore/QProcess> <QtCore/QTemporaryDir>
            <gmock/gmock.h> <gtest/gtest.h>
        LIBRARIES Qt6::Widgets GTest::gtest GTest::gmock)
    velkaro_add_precompiled_headers(velkaro-rules-test-headers
        HEADERS <QtCore/QStringList> <gtest/gtest.h> LIBRARIES Qt6::Core GTest::gtest)
endmacro()

function(velkaro_precompile target)
    if("TESTS" IN_LIST ARGN)
        target_precompile_headers(${target} REUSE_FROM velkaro-test-headers)
    else()
        target_precompile_headers(${target} REUSE_FROM ${velkaro_toolkit_headers})
    endif()
endfunction()
