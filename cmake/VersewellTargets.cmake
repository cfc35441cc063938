# SPDX-License-Identifier: MIT
# The kinds of targets this project has, each with the same warnings, definitions and sanitizers.

add_library(versewell_flags INTERFACE)
target_compile_options(versewell_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
if(VERSEWELL_WERROR)
    target_compile_options(versewell_flags INTERFACE -Werror)
endif()
target_compile_definitions(versewell_flags INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH QT_DEPRECATED_WARNINGS)
if(VERSEWELL_SANITIZE)
    # Global, so that the code that moc generates is covered as well.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(VERSEWELL_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# versewell_add_library(<folder> SOURCES ... LINK ... [PRIVATE_LINK ...]): the static library of one folder under src/,
# called versewell_<folder> ("lyrics/providers" gives versewell_lyrics_providers).
function(versewell_add_library folder)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
    string(REPLACE "/" "_" suffix "${folder}")
    add_library(versewell_${suffix} STATIC ${ARG_SOURCES})
    target_include_directories(versewell_${suffix} PUBLIC "${CMAKE_SOURCE_DIR}/src")
    target_link_libraries(versewell_${suffix}
        PUBLIC ${ARG_LINK}
        PRIVATE versewell_flags ${ARG_PRIVATE_LINK})
endfunction()

# versewell_add_test(<name> LINK ... [SOURCES ...] [FIXTURES ...] [TIMEOUT seconds] [READER]): a QtTest program tests/.../<name>.cpp and
# its CTest entry. FIXTURES names CTest fixtures that must be set up first ("samples": the generated songs). With READER it may start the tag
# reader of tests/support, whose path is VERSEWELL_READER.
function(versewell_add_test name)
    cmake_parse_arguments(ARG "READER" "TIMEOUT" "SOURCES;LINK;FIXTURES" ${ARGN})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
    target_link_libraries(${name} PRIVATE versewell_flags Qt5::Test ${ARG_LINK})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests/bin")
    target_compile_definitions(${name} PRIVATE
        VERSEWELL_SAMPLES_DIR="${VERSEWELL_SAMPLES_DIR}"
        VERSEWELL_TEST_DATA_DIR="${CMAKE_SOURCE_DIR}/tests/data")
    if(ARG_READER)
        add_dependencies(${name} versewell_test_reader)
        target_compile_definitions(${name} PRIVATE VERSEWELL_READER="$<TARGET_FILE:versewell_test_reader>")
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;QT_LOGGING_RULES=versewell.*.debug=false"
        FIXTURES_REQUIRED "${ARG_FIXTURES}"
        TIMEOUT ${ARG_TIMEOUT})
endfunction()
