# Builds a room of one form and one resource in an empty folder, changes them, and looks whether one more build
# takes the change in.
#   cmake -DSOURCE=... -DWORK=... -DQT=... -DGENERATOR=... -DCXX=... -P changed_form.cmake

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${output}${command}\nended with ${result}")
    endif()
endfunction()

# write_sources(TEXT): TEXT stands in the form and in the resource.
function(write_sources text)
    file(WRITE ${WORK}/room/parts/Part.ui "<ui version=\"4.0\"><class>Part</class><widget class=\"QLabel\" name=\"Part\">"
         "<property name=\"text\"><string>form ${text}</string></property></widget></ui>\n")
    file(WRITE ${WORK}/room/resources/text.txt "resource ${text}\n")
endfunction()

# build_has(TEXT): builds once; TEXT must have come with the form and with the resource.
function(build_has text)
    run(${CMAKE_COMMAND} --build ${WORK}/build)
    foreach(kind form resource)
        file(STRINGS ${WORK}/build/libkoroom.so found REGEX "${kind} ${text}")
        if(NOT found)
            message(SEND_ERROR "\"${kind} ${text}\" is not in what was built")
        endif()
    endforeach()
endfunction()

file(REMOVE_RECURSE ${WORK})
file(WRITE ${WORK}/room/CMakeLists.txt [[
cmake_minimum_required(VERSION 3.25)
project(ChangedForm VERSION 1.0 LANGUAGES CXX)
include(KoTargets)
ko_library(room SOURCES parts/Part.cpp parts/Part.ui resources/room.qrc LINK Qt::Widgets)
]])
file(WRITE ${WORK}/room/parts/Part.cpp [[
#include "ui_Part.h"

void setUp(QLabel* label)
{
    Ui::Part().setupUi(label);
}
]])
file(WRITE ${WORK}/room/resources/room.qrc "<RCC><qresource><file>text.txt</file></qresource></RCC>\n")

write_sources(before)
run(${CMAKE_COMMAND} -S ${WORK}/room -B ${WORK}/build -G ${GENERATOR} -DKO_QT=${QT}
    -DCMAKE_MODULE_PATH=${SOURCE}/cmake -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_BUILD_TYPE=Debug)
build_has(before)
write_sources(after)
build_has(after)
