# The Debian package, made and unpacked into an empty folder: its console works from there, and it holds what a
# desktop looks for. BUDOWA: the build folder with the programs.
cmake_minimum_required(VERSION 3.25)

set(FOLDER ${BUDOWA}/proba-pakietu)
file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER}/praca)

# Runs the command; its output is in WYNIK.
function(wykonaj)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE kod OUTPUT_VARIABLE wyjscie ERROR_VARIABLE bledy)
    if(NOT kod EQUAL 0)
        list(JOIN ARGN " " polecenie)
        message(FATAL_ERROR "${polecenie}: ${kod}\n${wyjscie}${bledy}")
    endif()
    set(WYNIK "${wyjscie}" PARENT_SCOPE)
endfunction()

# The least compression: the package is thrown away.
wykonaj(${CPACK} -G DEB --config ${BUDOWA}/CPackConfig.cmake -B ${FOLDER}
        -D CPACK_DEBIAN_COMPRESSION_TYPE=none -D CPACK_STRIP_FILES=OFF)
file(GLOB paczka ${FOLDER}/*.deb)
wykonaj(dpkg-deb -x ${paczka} ${FOLDER}/rozpakowana)

set(KORZEN ${FOLDER}/rozpakowana/usr)
foreach(plik bin/tornel share/tornel/Help.hlp share/applications/tornel.desktop share/metainfo/tornel.metainfo.xml
             share/mime/packages/tornel.xml share/man/man1/tornel.1 share/man/man1/tornel-cli.1
             share/icons/hicolor/48x48/apps/tornel.png share/icons/hicolor/scalable/apps/tornel.svg)
    if(NOT EXISTS ${KORZEN}/${plik})
        message(FATAL_ERROR "the package lacks ${plik}")
    endif()
endforeach()

set(KONSOLA ${CMAKE_COMMAND} -E env XDG_DATA_HOME=${FOLDER}/praca ${KORZEN}/bin/tornel-cli)
wykonaj(${KONSOLA} --version)
if(NOT WYNIK STREQUAL "tornel-cli ${WERSJA}\n")
    message(FATAL_ERROR "unexpected version: ${WYNIK}")
endif()
# Without a path the database is the user's, not one among the system's programs.
file(MAKE_DIRECTORY ${FOLDER}/praca/Tornel)
wykonaj(${KONSOLA} przyklad ${FOLDER}/praca/Tornel/Tornel.mdb)
wykonaj(${KONSOLA} lista pokaz 2001-03)
if(NOT WYNIK MATCHES "40670,77")
    message(FATAL_ERROR "unexpected list:\n${WYNIK}")
endif()
wykonaj(${KONSOLA} wydruk lista-plac 2001-03 --pdf ${FOLDER}/praca/lista.pdf)
file(SIZE ${FOLDER}/praca/lista.pdf rozmiar)
if(rozmiar LESS 10000)
    message(FATAL_ERROR "a print of ${rozmiar} bytes")
endif()
file(REMOVE_RECURSE ${FOLDER})
