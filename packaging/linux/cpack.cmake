# A Debian package. Menu entry, file type and icons need no scripts: the desktop's own packages watch their folders.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)

# Libraries are found by looking into the programs; what they start or load by name is not.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qttranslations5-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "openssh-client, qt5-image-formats-plugins, sshpass, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qtwayland5")
