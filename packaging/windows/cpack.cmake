# An installer and an archive. Not tried on Windows yet.
set(CPACK_GENERATOR NSIS ZIP)
set(CPACK_PACKAGE_INSTALL_DIRECTORY Ventaro)
set(CPACK_PACKAGE_EXECUTABLES ventaro Ventaro)
set(CPACK_NSIS_DISPLAY_NAME "Ventaro ${PROJECT_VERSION}")
set(CPACK_NSIS_PACKAGE_NAME Ventaro)
set(CPACK_NSIS_MUI_ICON ${CMAKE_CURRENT_LIST_DIR}/ventaro.ico)
set(CPACK_NSIS_MUI_UNIICON ${CPACK_NSIS_MUI_ICON})
set(CPACK_NSIS_INSTALLED_ICON_NAME [[bin\ventaro.exe]])
set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)

# Project files open with a double click, for those whom the program is installed for.
set(CPACK_NSIS_EXTRA_INSTALL_COMMANDS [[
    WriteRegStr SHCTX "Software\Classes\.vnt" "" "Ventaro.Project"
    WriteRegStr SHCTX "Software\Classes\Ventaro.Project" "" "Ventaro-Projekt"
    WriteRegStr SHCTX "Software\Classes\Ventaro.Project\DefaultIcon" "" "$INSTDIR\bin\project.ico"
    WriteRegStr SHCTX "Software\Classes\Ventaro.Project\shell\open\command" "" '"$INSTDIR\bin\ventaro.exe" "%1"'
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, i 0, i 0)'
]])
set(CPACK_NSIS_EXTRA_UNINSTALL_COMMANDS [[
    ReadRegStr $R9 SHCTX "Software\Classes\.vnt" ""
    StrCmp $R9 "Ventaro.Project" 0 +2
    DeleteRegValue SHCTX "Software\Classes\.vnt" ""
    DeleteRegKey SHCTX "Software\Classes\Ventaro.Project"
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, i 0, i 0)'
]])
