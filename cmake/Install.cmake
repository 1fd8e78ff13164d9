# Where things go: what CUPS looks for where CUPS looks, the rest where the system keeps such things.
include(GNUInstallDirs)

if(APPLE)
  # CUPS' own folders are sealed there; a driver has one below /Library/Printers, and its PPDs name the filter in full.
  set(filter_dir /Library/Printers/Orvane/Filters)
  set(model_dir /Library/Printers/PPDs/Contents/Resources)
else()
  find_program(CUPS_CONFIG cups-config REQUIRED)
  execute_process(COMMAND ${CUPS_CONFIG} --serverbin OUTPUT_VARIABLE serverbin
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${CUPS_CONFIG} --datadir OUTPUT_VARIABLE datadir
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(filter_dir ${serverbin}/filter)
  set(model_dir ${datadir}/model/orvane)
endif()
set(OV_FILTER_DIR ${filter_dir} CACHE PATH "Where CUPS looks for filters")
set(OV_MODEL_DIR ${model_dir} CACHE PATH "Where CUPS looks for models")

include(cmake/TicketNames.cmake)
set(man_page ${PROJECT_BINARY_DIR}/man/pstoorvane.8)
set(tool_page ${PROJECT_BINARY_DIR}/man/orvane-job.1)
configure_file(${PROJECT_SOURCE_DIR}/man/pstoorvane.8.in ${man_page} @ONLY)
configure_file(${PROJECT_SOURCE_DIR}/man/orvane-job.1.in ${tool_page} @ONLY)

# CUPS refuses a filter that others may write.
set(everyone_runs OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${everyone_runs})
install(TARGETS pstoorvane DESTINATION ${OV_FILTER_DIR} PERMISSIONS ${everyone_runs})
install(DIRECTORY ${PROJECT_BINARY_DIR}/ppd/ DESTINATION ${OV_MODEL_DIR}
  FILES_MATCHING REGEX "/ppd/[a-z]+\\.ppd$" PATTERN compiled EXCLUDE PATTERN CMakeFiles EXCLUDE)
install(TARGETS orvane-job DESTINATION ${CMAKE_INSTALL_BINDIR} PERMISSIONS ${everyone_runs})
install(FILES ${man_page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man8)
install(FILES ${tool_page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES tools/orvane-job/completion.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
  RENAME orvane-job)
install(FILES CHANGELOG.md SECURITY.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/pstoorvane)
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/pstoorvane FILES_MATCHING PATTERN "*.md")
