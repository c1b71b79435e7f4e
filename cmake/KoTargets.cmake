# What every target shares: toolkit, language, warnings, and the way a room becomes a library.

if(NOT KO_QT MATCHES "^[56]$")
    message(FATAL_ERROR "KO_QT is '${KO_QT}'; it takes 5 or 6")
endif()
set(QT_DEFAULT_MAJOR_VERSION ${KO_QT})
set(KO_QT_PUBLIC_COMPONENTS Core Gui Widgets Network)
if(KO_QT EQUAL 6)
    list(APPEND KO_QT_PUBLIC_COMPONENTS Core5Compat)
endif()
set(KO_QT_COMPONENTS ${KO_QT_PUBLIC_COMPONENTS} DBus)
if(KO_TESTS OR KO_BENCH)
    list(APPEND KO_QT_COMPONENTS Test Sql) # they look into databases past the host
endif()
find_package(Qt${KO_QT} REQUIRED COMPONENTS ${KO_QT_COMPONENTS})

# One tool for both toolkits: they read the same files. Not the lrelease in the path, which may be the empty wrapper
# of qtchooser.
find_program(KO_LRELEASE lrelease PATHS /usr/lib/qt6/bin /usr/lib/qt5/bin NO_DEFAULT_PATH)
find_program(KO_LRELEASE NAMES lrelease-qt6 lrelease-qt5 lrelease REQUIRED)

include(GNUInstallDirs)
set(KO_NODE_TYPES_FOLDER ${CMAKE_INSTALL_LIBDIR}/konodeui/nodetypes) # of plugins; below the prefix

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}") # of programs; libraries lie side by side
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)

add_library(ko_flags INTERFACE)
target_compile_options(ko_flags INTERFACE -Wall -Wextra -Wpedantic -Werror)
# Qt 6.4 marks API that Qt 4.8 and 5.15 need as deprecated; what is gone does not compile anyway.
target_compile_definitions(ko_flags INTERFACE QT_NO_DEPRECATED_WARNINGS)
if(KO_FUZZ)
    target_compile_options(ko_flags INTERFACE -O1 -fno-omit-frame-pointer -fno-sanitize-recover=all
                           -fsanitize=fuzzer-no-link,address,undefined)
    target_link_options(ko_flags INTERFACE -fsanitize=address,undefined)
endif()
if(KO_SANITIZE STREQUAL "thread")
    target_compile_options(ko_flags INTERFACE -fsanitize=thread -O1 -fno-omit-frame-pointer)
    target_link_options(ko_flags INTERFACE -fsanitize=thread)
elseif(KO_SANITIZE)
    target_compile_options(ko_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                           -fno-omit-frame-pointer)
    target_compile_definitions(ko_flags INTERFACE KO_SANITIZE)
    target_link_options(ko_flags INTERFACE -fsanitize=address,undefined)
endif()

# ko_precompile(TARGET [AS OTHER]): compiles most of the toolkit's headers once for the target, or takes what OTHER
# has. For builds that are made from nothing again and again; in the others each file must include what it uses.
function(ko_precompile target)
    cmake_parse_arguments(ARG "" "AS" "" ${ARGN})
    if(KO_PRECOMPILE AND ARG_AS)
        target_precompile_headers(${target} REUSE_FROM ${ARG_AS})
    elseif(KO_PRECOMPILE)
        target_precompile_headers(${target} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/Precompiled.h)
    endif()
    if(KO_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(${target} PRIVATE -fpch-preprocess) # or ccache does not see them
    endif()
endfunction()

# ko_translations(NAME): compiles translations/NAME_*.ts of this folder into the resources of the target, as
# :/translations/NAME_*.qm.
function(ko_translations name)
    file(GLOB sources CONFIGURE_DEPENDS translations/*.ts)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/translations)
    set(compiled)
    set(entries)
    foreach(source ${sources})
        get_filename_component(language ${source} NAME_WE)
        set(qm ${folder}/${language}.qm)
        add_custom_command(OUTPUT ${qm} DEPENDS ${source}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
            COMMAND ${KO_LRELEASE} -silent ${source} -qm ${qm})
        list(APPEND compiled ${qm})
        string(APPEND entries "<file>${language}.qm</file>")
    endforeach()
    set(list ${folder}/${name}_translations.qrc)
    file(CONFIGURE OUTPUT ${list} CONTENT "<RCC><qresource prefix=\"/translations\">${entries}</qresource></RCC>\n")
    # Named as the toolkit names such files: clazy leaves them out.
    set(source ${folder}/qrc_${name}_translations.cpp)
    add_custom_command(OUTPUT ${source} DEPENDS ${list} ${compiled}
        COMMAND Qt${KO_QT}::rcc --name ${name}_translations ${list} -o ${source})
    set_source_files_properties(${source} ${list} PROPERTIES SKIP_AUTOGEN ON)
    set(KO_TRANSLATIONS ${source} PARENT_SCOPE)
endfunction()

# ko_public_headers(OUT HEADERS...): those that declare something exported, and what these include.
function(ko_public_headers out)
    set(public ${ARGN})
    foreach(header ${ARGN})
        file(STRINGS ${header} exports REGEX "KO_[A-Z]+_EXPORT")
        if(NOT exports)
            list(REMOVE_ITEM public ${header})
        endif()
    endforeach()
    set(reached ${public})
    while(reached)
        list(POP_FRONT reached header)
        file(STRINGS ${header} lines REGEX "^#include \"")
        foreach(line ${lines})
            string(REGEX REPLACE "^#include \"(.*)\"" "${CMAKE_CURRENT_SOURCE_DIR}/\\1" included ${line})
            if(included IN_LIST ARGN AND NOT included IN_LIST public)
                list(APPEND public ${included})
                list(APPEND reached ${included})
            endif()
        endforeach()
    endwhile()
    set(${out} ${public} PARENT_SCOPE)
endfunction()

# ko_pkgconfig(NAME LIBRARIES...): ko<name>.pc, which finds its folders from its own.
function(ko_pkgconfig name)
    set(requires ${ARGN})
    list(TRANSFORM requires REPLACE "^Qt[56]?::" "Qt${KO_QT}")
    list(TRANSFORM requires REPLACE "^([a-z]+)$" "ko\\1")
    list(JOIN requires " " requires)
    file(RELATIVE_PATH up /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    string(REGEX REPLACE "/$" "" up ${up})
    configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/library.pc.in ko${name}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ko${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

# ko_library(NAME [CONTRACT] SOURCES... [LINK PUBLIC-LIBRARIES...] [PRIVATE PRIVATE-LIBRARIES...])
# A room of the house: libko<name>, target KoNodeUI::<name>, its own folder as include root. What is exported is
# installed, of the CONTRACT every header.
function(ko_library name)
    cmake_parse_arguments(ARG "CONTRACT" "" "SOURCES;LINK;PRIVATE" ${ARGN})
    # Not AUTOUIC: Ninja does not know what it writes, so a changed form is compiled only by the second build.
    set(forms ${ARG_SOURCES})
    list(FILTER forms INCLUDE REGEX "\\.ui$")
    set(form_headers)
    qt_wrap_ui(form_headers ${forms})
    set(headers ${ARG_SOURCES})
    list(FILTER headers INCLUDE REGEX "\\.h$")
    if(NOT ARG_CONTRACT)
        ko_public_headers(headers ${headers})
    endif()
    add_library(${name} SHARED ${ARG_SOURCES} ${form_headers})
    add_library(KoNodeUI::${name} ALIAS ${name})
    string(TOUPPER ${name} upper)
    set_target_properties(${name} PROPERTIES
        OUTPUT_NAME ko${name}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        AUTOGEN_BUILD_DIR ${CMAKE_CURRENT_BINARY_DIR}/moc # NAME_autogen may hold headers of forms from older builds
        INSTALL_RPATH "$ORIGIN")
    target_compile_definitions(${name} PRIVATE KO_BUILD_${upper})
    target_compile_features(${name} PUBLIC cxx_std_17) # the headers; not every compiler's default
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}) # of the forms
    target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>)
    target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${CMAKE_CURRENT_SOURCE_DIR} FILES ${headers})
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE ${ARG_PRIVATE} $<BUILD_INTERFACE:ko_flags>)
    ko_precompile(${name})
    set_property(GLOBAL APPEND PROPERTY KO_PUBLIC_HEADERS ${headers}) # for the reference
    install(TARGETS ${name} EXPORT KoNodeUITargets
            FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/konodeui)
    ko_pkgconfig(${name} ${ARG_LINK})
endfunction()
