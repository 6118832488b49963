# Run by CPack when the files of the Debian package are staged, before it packs them.

set(staged ${CPACK_TEMPORARY_DIRECTORY}/usr)
set(program_folder ${staged}/lib/gullymarkal)

# Depended on: the libraries of the program. Only recommended: those of gullymark-office with the office itself, and the
# viewer of the help. dpkg-shlibdeps wants a control file where it runs.
set(shlibdeps_folder ${CPACK_TOPLEVEL_DIRECTORY}/shlibdeps)
file(WRITE ${shlibdeps_folder}/debian/control "Source: gullymarkal\n\nPackage: gullymarkal\nArchitecture: any\n")
set(files -dDepends -e${program_folder}/GullymarkAL -e${program_folder}/gullymark-review)
if(EXISTS ${program_folder}/gullymark-office)
  list(APPEND files -dRecommends -e${program_folder}/gullymark-office)
endif()
execute_process(COMMAND dpkg-shlibdeps -O ${files}
  WORKING_DIRECTORY ${shlibdeps_folder} OUTPUT_VARIABLE libraries COMMAND_ERROR_IS_FATAL ANY)
foreach(field Depends Recommends)
  if(libraries MATCHES "shlibs:${field}=([^\n]*)")
    set(${field} "${CMAKE_MATCH_1}, ")
  endif()
endforeach()
if(NOT Depends)
  message(FATAL_ERROR "dpkg-shlibdeps names no library of the program: ${libraries}")
endif()
string(REGEX REPLACE ", $" "" CPACK_DEBIAN_PACKAGE_DEPENDS "${Depends}")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "${Recommends}libreoffice-calc, xchm, xdg-utils, fonts-dejavu-core, fonts-liberation2 | fonts-liberation")

# What the compiler says of itself helps no user.
file(GLOB programs ${program_folder}/GullymarkAL ${program_folder}/gullymark-review ${program_folder}/gullymark-office)
execute_process(COMMAND strip --remove-section=.comment --remove-section=.note ${programs} COMMAND_ERROR_IS_FATAL ANY)

# gullymark-office finds the office's libraries in the office's own folder, which Debian's checker would forbid.
file(WRITE ${staged}/share/lintian/overrides/gullymarkal
  "gullymarkal: custom-library-search-path RUNPATH /usr/lib/libreoffice/program *\n")

# Debian keeps its manual pages packed, and wants a changelog.
set(changelog ${staged}/share/doc/gullymarkal/changelog)
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE ${changelog} "${CPACK_PACKAGE_NAME} (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium

  * This release.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
execute_process(COMMAND gzip -9n ${changelog} ${staged}/share/man/man1/GullymarkAL.1
  ${staged}/share/man/man1/gullymark-review.1 COMMAND_ERROR_IS_FATAL ANY)

# Whatever who packs may keep to himself elsewhere.
execute_process(COMMAND chmod --recursive u=rwX,go=rX ${CPACK_TEMPORARY_DIRECTORY}/usr COMMAND_ERROR_IS_FATAL ANY)
