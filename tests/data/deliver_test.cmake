# SPDX-License-Identifier: MIT
# Delivering twice: the first time brings everything, the second leaves what the user has changed and brings back what
# is missing.
cmake_policy(VERSION 3.25)

set(folder "${WORK}/deliver_test")
file(REMOVE_RECURSE "${folder}")
file(MAKE_DIRECTORY "${folder}")

function(deliver)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -DSOURCES=${SOURCES} -DSTORES=${STORES} -DFOLDER=${folder} -P ${SOURCES}/deliver.cmake
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

deliver()
foreach(name hive.mdb synonyms.mdb twk.dat garden-sample.dat TIPOFDAY.TXT help.htm swf/twk.swf Images/templates/template2_back.gif)
  if(NOT EXISTS "${folder}/${name}")
    message(SEND_ERROR "${name} was not delivered")
  endif()
endforeach()
file(GLOB pictures "${folder}/Images/*.gif" "${folder}/Images/*.jpg")
list(LENGTH pictures count)
if(count LESS 6)
  message(SEND_ERROR "only ${count} pictures were delivered")
endif()

foreach(name hive.mdb synonyms.mdb twk.dat garden-sample.dat Images/dunes.gif)
  file(WRITE "${folder}/${name}" "mine")
endforeach()
file(REMOVE "${folder}/help.htm")
deliver()
foreach(name hive.mdb synonyms.mdb twk.dat garden-sample.dat Images/dunes.gif)
  file(READ "${folder}/${name}" content)
  if(NOT content STREQUAL "mine")
    message(SEND_ERROR "${name} of the user was overwritten")
  endif()
endforeach()
if(NOT EXISTS "${folder}/help.htm")
  message(SEND_ERROR "a missing file was not brought back")
endif()
file(GLOB leftovers "${folder}/*.new")
if(leftovers)
  message(SEND_ERROR "left behind: ${leftovers}")
endif()
file(REMOVE_RECURSE "${folder}")
