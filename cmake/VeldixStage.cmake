# The tree that the program runs in, as `cmake --install BUILD --prefix DIR` lays it:
#   DIR/VELDIX/EXE      the programs
#   DIR/VELDIX/ini      settings and language files, beside EXE
#   DIR/VELDIX/Iconos   pictures and the film
#   DIR/Models          relay model databases
#   DIR/Registros, DIR/Plantillas   the demonstration record and its template
# Settings of an earlier run are kept; those of a first one are for a tree that its user may write.

install(TARGETS veldix veldix-cli RUNTIME DESTINATION VELDIX/EXE)
install(FILES runtime/VELDIX/ini/vdotro.ini runtime/VELDIX/ini/vdingles.ini DESTINATION VELDIX/ini)
install(DIRECTORY runtime/VELDIX/Iconos DESTINATION VELDIX PATTERN ".gitkeep" EXCLUDE)
install(DIRECTORY runtime/Models DESTINATION . PATTERN ".gitkeep" EXCLUDE)
install(DIRECTORY examples/ DESTINATION Registros
  FILES_MATCHING PATTERN "*.cfg" PATTERN "*.dat" PATTERN "*.hdr" PATTERN "__pycache__" EXCLUDE PATTERN "modelos" EXCLUDE)
install(FILES examples/falta.cnf DESTINATION Plantillas)
install(CODE [[
  set(raiz "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
  set(ini "${raiz}/VELDIX/ini")
  if(NOT EXISTS "${ini}/ficher.ini")
    file(WRITE "${ini}/ficher.ini" " 1 \r\n 4 \r\n\r\n\r\n\r\n\r\n")
  endif()
  if(NOT EXISTS "${ini}/tools.ini")
    file(WRITE "${ini}/tools.ini"
      "1\r\n${CMAKE_INSTALL_PREFIX}/Registros\r\n${CMAKE_INSTALL_PREFIX}/Plantillas\r\n${CMAKE_INSTALL_PREFIX}/VELDIX/EXE\r\n0\r\n")
  endif()
]] COMPONENT primera)
