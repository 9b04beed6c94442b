# `cpack -G DEB` from the build folder: the tree of VeldixStage.cmake under /opt/veldix, without settings of its own,
# and what the desktop and the path need. Users may not write there: runtime/sistema/lanzador lays each his own tree.

install(PROGRAMS runtime/sistema/lanzador DESTINATION . COMPONENT sistema EXCLUDE_FROM_ALL)
install(FILES runtime/sistema/veldix.desktop DESTINATION /usr/share/applications COMPONENT sistema EXCLUDE_FROM_ALL)
install(FILES runtime/sistema/veldix-comtrade.xml DESTINATION /usr/share/mime/packages
  COMPONENT sistema EXCLUDE_FROM_ALL)
install(DIRECTORY runtime/sistema/hicolor DESTINATION /usr/share/icons COMPONENT sistema EXCLUDE_FROM_ALL)
install(FILES LICENSE DESTINATION /usr/share/doc/veldix RENAME copyright COMPONENT sistema EXCLUDE_FROM_ALL)
install(FILES docs/guide.md DESTINATION /usr/share/doc/veldix COMPONENT sistema EXCLUDE_FROM_ALL)
install(DIRECTORY docs/pictures DESTINATION /usr/share/doc/veldix COMPONENT sistema EXCLUDE_FROM_ALL)
# Relative links: the package works wherever its files are laid out.
install(CODE [[
  set(bin "$ENV{DESTDIR}/usr/bin")
  file(MAKE_DIRECTORY "${bin}")
  foreach(orden veldix veldix-cli)
    file(CREATE_LINK ../../opt/veldix/lanzador "${bin}/${orden}" SYMBOLIC)
  endforeach()
]] COMPONENT sistema EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME veldix)
set(CPACK_PACKAGE_CONTACT "VELDIX developers <developers@veldix.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "viewer and analyser of power-system fault records")
set(CPACK_PACKAGE_DESCRIPTION "Opens the COMTRADE records of digital protection relays, revisions 1991 and 1997:
waves, digital channels, phasors and symmetrical sequences, measured with two
cursors and printed. veldix-cli gives the same figures to scripts.")
set(CPACK_PACKAGING_INSTALL_PREFIX /opt/veldix)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/paquete)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_CMAKE_PROJECTS
  "${CMAKE_BINARY_DIR};VELDIX;Unspecified;/" "${CMAKE_BINARY_DIR};VELDIX;sistema;/")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libxcb-cursor0, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, qt6-wayland, cups-client")
include(CPack)
