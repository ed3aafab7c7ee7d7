# Makes the Debian package of a build and unpacks it into a scratch root (dpkg -x): the files
# are where the launcher entry says, the program answers, and the Depends line names the
# libraries it links.
#   cmake -DBUILD_DIR=... -DSCRATCH=... -DVERSION=... -P CheckPackage.cmake
file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH})
execute_process(COMMAND cpack -G DEB -B ${SCRATCH}/out --config ${BUILD_DIR}/CPackConfig.cmake
                RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE out)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "cpack failed: ${out}")
endif()
execute_process(COMMAND dpkg --print-architecture OUTPUT_VARIABLE arch
                OUTPUT_STRIP_TRAILING_WHITESPACE)
set(deb ${SCRATCH}/out/pelvane_${VERSION}_${arch}.deb)
if(NOT EXISTS ${deb})
  file(GLOB made ${SCRATCH}/out/*.deb)
  message(FATAL_ERROR "no ${deb}; cpack made: ${made}")
endif()

execute_process(COMMAND dpkg-deb -f ${deb} Package Version Architecture Depends
                OUTPUT_VARIABLE fields RESULT_VARIABLE result)
foreach(wanted "Package: pelvane" "Version: ${VERSION}" "Architecture: ${arch}" "libqt6widgets6"
        "libqt6core6" "libsqlite3-0" "libc6" "qt6-qpa-plugins")
  string(FIND "${fields}" "${wanted}" at)
  if(at LESS 0)
    message(FATAL_ERROR "the package's fields lack ${wanted}:\n${fields}")
  endif()
endforeach()

set(root ${SCRATCH}/root)
execute_process(COMMAND dpkg -x ${deb} ${root} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "dpkg -x failed: ${result}")
endif()

# The launcher entry names the program and the icon; both are where a desktop looks for them.
set(id org.pelvane.pelvane)
set(entry_file ${root}/usr/share/applications/${id}.desktop)
if(NOT EXISTS ${entry_file})
  message(FATAL_ERROR "the package has no launcher entry at /usr/share/applications")
endif()
file(STRINGS ${entry_file} exec REGEX "^Exec=")
file(STRINGS ${entry_file} icon REGEX "^Icon=")
string(REGEX REPLACE "^Exec=([^ ]+).*" "\\1" program "${exec}")
string(REGEX REPLACE "^Icon=(.*)" "\\1" icon "${icon}")
if(NOT EXISTS ${root}/usr/bin/${program})
  message(FATAL_ERROR "the launcher runs ${program}, which is not in /usr/bin")
endif()
foreach(f share/icons/hicolor/scalable/apps/${icon}.svg share/icons/hicolor/256x256/apps/${icon}.png
        share/icons/hicolor/16x16/apps/${icon}.png share/metainfo/${id}.metainfo.xml)
  if(NOT EXISTS ${root}/usr/${f})
    message(FATAL_ERROR "missing from the package: /usr/${f}")
  endif()
endforeach()
execute_process(COMMAND ${root}/usr/bin/${program} --version RESULT_VARIABLE result
                OUTPUT_VARIABLE out)
if(NOT result EQUAL 0 OR NOT out MATCHES "^Pelvane ${VERSION}")
  message(FATAL_ERROR "the packaged program answered --version with ${result}: ${out}")
endif()
file(REMOVE_RECURSE ${SCRATCH})
