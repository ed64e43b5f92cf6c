# SPDX-License-Identifier: MIT
# Puts what is delivered beside the program into FOLDER. Whatever stands there already is the user's and stays:
# stores, settings files, pictures. SOURCES is this folder, STORES the one with the two finished stores.
cmake_policy(VERSION 3.25)

file(GLOB_RECURSE pictures RELATIVE ${SOURCES} ${SOURCES}/Images/* ${SOURCES}/swf/*)
foreach(name twk.dat garden-sample.dat TIPOFDAY.TXT help.htm ${pictures})
  list(APPEND delivered "${SOURCES}/${name}" "${name}")
endforeach()
foreach(name hive.mdb synonyms.mdb)
  list(APPEND delivered "${STORES}/${name}" "${name}")
endforeach()

while(delivered)
  list(POP_FRONT delivered from name)
  if(NOT EXISTS "${FOLDER}/${name}")
    # Under another name first: a copy that breaks off must not look like the user's file the next time.
    get_filename_component(directory "${FOLDER}/${name}" DIRECTORY)
    file(MAKE_DIRECTORY "${directory}")
    file(COPY_FILE "${from}" "${FOLDER}/${name}.new")
    file(RENAME "${FOLDER}/${name}.new" "${FOLDER}/${name}")
    file(CHMOD "${FOLDER}/${name}" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    message(STATUS "Delivered ${name}")
  endif()
endwhile()
