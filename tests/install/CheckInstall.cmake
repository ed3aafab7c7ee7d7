# Installs the build into a fresh prefix and checks that every file a desktop expects is where
# it looks: cmake -DBUILD_DIR=... -DPREFIX=... -P CheckInstall.cmake
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX}
                RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "cmake --install failed: ${result}")
endif()

set(id org.pelvane.pelvane)
set(expected bin/pelvane share/applications/${id}.desktop share/metainfo/${id}.metainfo.xml
    share/icons/hicolor/scalable/apps/${id}.svg)
foreach(size 16 24 32 48 64 128 256)
  list(APPEND expected share/icons/hicolor/${size}x${size}/apps/${id}.png)
endforeach()
foreach(f ${expected})
  if(NOT EXISTS ${PREFIX}/${f})
    message(FATAL_ERROR "missing after install: ${f}")
  endif()
endforeach()

# The icons are real pictures of their size (a PNG's width and height sit at bytes 16 to 23).
foreach(size 16 256)
  file(READ ${PREFIX}/share/icons/hicolor/${size}x${size}/apps/${id}.png header LIMIT 24 HEX)
  string(SUBSTRING ${header} 32 16 dimensions)
  math(EXPR hex_size "${size}" OUTPUT_FORMAT HEXADECIMAL)
  string(REPLACE "0x" "" hex_size ${hex_size})
  string(LENGTH ${hex_size} digits)
  while(digits LESS 8)
    string(PREPEND hex_size 0)
    string(LENGTH ${hex_size} digits)
  endwhile()
  if(NOT dimensions STREQUAL "${hex_size}${hex_size}")
    message(FATAL_ERROR "${size}x${size} icon has the size ${dimensions}")
  endif()
endforeach()

# The launcher starts the installed program by name with the installed icon, and the
# installed program answers.
file(READ ${PREFIX}/share/applications/${id}.desktop entry)
foreach(line "Exec=pelvane" "Icon=${id}" "Type=Application")
  string(FIND "${entry}" "${line}\n" at)
  if(at LESS 0)
    message(FATAL_ERROR "the desktop entry lacks ${line}")
  endif()
endforeach()
execute_process(COMMAND ${PREFIX}/bin/pelvane --version RESULT_VARIABLE result OUTPUT_VARIABLE out)
if(NOT result EQUAL 0 OR NOT out MATCHES "^Pelvane [0-9]")
  message(FATAL_ERROR "the installed program answered --version with ${result}: ${out}")
endif()
file(REMOVE_RECURSE ${PREFIX})
