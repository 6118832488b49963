# The Debian package, made by tools/make_deb.sh.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME gullymarkal)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "GullymarkAL maintainers <maintainers@gullymarkal.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "design tool for roadway storm-water inlets")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"GullymarkAL keeps the inlets of a road in one project file and solves each for
spread, depth and flow: curb, grate, combination and slotted inlets and grates
in a ditch, on a continuous grade or in a sump. It is built around the standard
inlets of the Alabama Department of Transportation.
.
A second program, gullymark-review, checks a project, which it only reads: a
double click on a project opens it there.
.
Its two reports are shown in LibreOffice Calc, its help in a viewer of .chm
files; all else works without them.")
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
# Packing needs the program only, which make_deb.sh has built; not the tests.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
# What the package depends on, and what only Debian wants, is made from the staged files.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_SOURCE_DIR}/cmake/finish_debian_package.cmake)
include(CPack)
