# Turns one language file from UTF-8, as it is kept, into what the program reads: UTF-16 with its byte-order mark and
# Windows line ends.  cmake -DICONV=... -DFROM=lang/x.ini -DTO=x.ini -P Language.cmake
file(READ ${FROM} text)
string(ASCII 239 187 191 mark)
string(REPLACE "\r\n" "\n" text "${text}")
string(REPLACE "\n" "\r\n" text "${text}")
file(WRITE ${TO}.utf8 "${mark}${text}")
execute_process(COMMAND ${ICONV} -f UTF-8 -t UTF-16LE ${TO}.utf8 OUTPUT_FILE ${TO} RESULT_VARIABLE failed)
file(REMOVE ${TO}.utf8)
if(failed)
  file(REMOVE ${TO})
  message(FATAL_ERROR "${FROM} cannot be converted: ${failed}")
endif()
