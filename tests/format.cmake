# Every source keeps the format of .clang-format.
find_program(CLANG_FORMAT clang-format)
if(NOT CLANG_FORMAT)
    message(FATAL_ERROR "clang-format is missing")
endif()
file(GLOB_RECURSE PLIKI ${KORZEN}/src/*.h ${KORZEN}/src/*.cpp ${KORZEN}/tests/*.h ${KORZEN}/tests/*.cpp
     ${KORZEN}/bench/*.h ${KORZEN}/bench/*.cpp ${KORZEN}/tools/*.cpp)
execute_process(COMMAND ${CLANG_FORMAT} --dry-run -Werror ${PLIKI} RESULT_VARIABLE WYNIK)
if(NOT WYNIK EQUAL 0)
    message(FATAL_ERROR "clang-format would change files")
endif()
