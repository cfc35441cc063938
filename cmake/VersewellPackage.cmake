# SPDX-License-Identifier: MIT
# The Debian package; script/package makes it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME versewell)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "${VERSEWELL_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${VERSEWELL_MAKER_URL}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "finds the lyrics of songs and stores them in the files")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Versewell searches lyrics sites for the words of your songs, in the order\nyou like, has names corrected when none knows the song, and stores what it\nfound in the files' own tags: ID3v2, MP4, ASF, Vorbis comments and APE.\n.\nA song is never left half written, whatever happens during a save.")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# The linked libraries are worked out; what is loaded while the program runs has to be named.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
string(JOIN ", " CPACK_DEBIAN_PACKAGE_DEPENDS
    qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-layouts qml-module-qtquick-controls)
# Without these the preview of songs is all that is missing.
string(JOIN ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS
    qml-module-qtmultimedia libqt5multimedia5-plugins gstreamer1.0-plugins-base gstreamer1.0-plugins-good xdg-utils)
string(JOIN ", " CPACK_DEBIAN_PACKAGE_SUGGESTS gstreamer1.0-plugins-bad gstreamer1.0-libav)
include(CPack)
