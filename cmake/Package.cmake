# The Debian package: ./dev package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME wifitool)
set(CPACK_PACKAGE_VENDOR "Quillmark")
set(CPACK_PACKAGE_CONTACT "Quillmark <support@quillmark.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "put a USB-connected printer onto a wireless network")
set(CPACK_PACKAGE_DESCRIPTION
"Finds a printer that is plugged in by USB, shows the wireless networks that
the computer sees with the stored password filled in, sends both to the
printer, waits until the printer has its address, and opens, if asked to,
the desktop's panel for adding printers.
.
Printers with a WPS button are guided through without a cable.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The linked libraries come with Qt's plug-ins and a font; what nothing links is the permission rule's package
# and the spooler's library, which is loaded while the program starts.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "udev, libcups2")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "network-manager, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "fonts-noto-cjk, system-config-printer | gnome-control-center | plasma-desktop")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_SOURCE_DIR}/build)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_SOURCE_DIR}/packaging/postinst)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
