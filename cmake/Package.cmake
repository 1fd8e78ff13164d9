# The Debian package: `cpack -G DEB` in the build folder.
set(OV_MAINTAINER "Orvane filter maintainers <maintainers@orvane.example>"
    CACHE STRING "Who answers for the package")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "${OV_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "PostScript filter and queues for Orvane printers")
string(CONCAT CPACK_PACKAGE_DESCRIPTION
  "A CUPS filter that turns a PostScript job into a PJL job with the settings\n"
  "that the printer cannot read from PostScript: held jobs, job accounting,\n"
  "finishing, perfect binding, special pages and watermarks.")
if(OV_DEVELOPMENT_KEYS)
  string(APPEND CPACK_PACKAGE_DESCRIPTION "\n\nThis package is built with the DEVELOPMENT keys, which are public: whoever\n"
    "sees a job can read its passwords. Use it for tests only.")
endif()

# CUPS' folders are absolute, so the package is made as `DESTDIR=... cmake --install` lays it out.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION text)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_DEPENDS cups)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

# A package is made of what is built; tests make one in a tree that must not change under them.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
include(CPack)
