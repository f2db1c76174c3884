# Installs the bundle where hosts of preference panes look for it, and makes a Debian package and a source archive of it.

# GNUstep's hosts look below the system's own folder and below the one that the administrator's installations use; below
# their prefixes, both have the same name.
execute_process(COMMAND ${GNUSTEP_CONFIG} --variable=GNUSTEP_SYSTEM_LIBRARY
                OUTPUT_VARIABLE library OUTPUT_STRIP_TRAILING_WHITESPACE)
cmake_path(RELATIVE_PATH library BASE_DIRECTORY /usr)
set(document_folder share/doc/sorter-pane)
set(all_read OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
set(all_enter ${all_read} OWNER_EXECUTE GROUP_EXECUTE WORLD_EXECUTE)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${all_enter})

install(DIRECTORY "${PROJECT_BINARY_DIR}/SorterPane.prefPane" DESTINATION "${library}/Bundles"
        FILE_PERMISSIONS ${all_read} DIRECTORY_PERMISSIONS ${all_enter} PATTERN MacOS EXCLUDE)
install(TARGETS SorterPane LIBRARY DESTINATION "${library}/Bundles/SorterPane.prefPane/Contents/MacOS"
        PERMISSIONS ${all_read})

# The newest release in the list of changes that has a date.
file(STRINGS "${PROJECT_SOURCE_DIR}/CHANGELOG.md" releases REGEX "^## \\[[0-9.]+\\] - ")
list(GET releases 0 newest)
string(REGEX REPLACE ".* - " "" SORTERPANE_RELEASE_DATE "${newest}")
execute_process(COMMAND date -u -R -d ${SORTERPANE_RELEASE_DATE}
                OUTPUT_VARIABLE SORTERPANE_RELEASE_TIME OUTPUT_STRIP_TRAILING_WHITESPACE)

set(CPACK_PACKAGE_CONTACT "The Sorter pane's authors <maintainers@quarrybook.example>")
set(packaging "${PROJECT_SOURCE_DIR}/packaging")
set(made "${PROJECT_BINARY_DIR}/packaging")
configure_file("${packaging}/com.quarrybook.SorterPane.metainfo.xml.in" "${made}/com.quarrybook.SorterPane.metainfo.xml" @ONLY)
configure_file("${packaging}/changelog.in" "${made}/changelog" @ONLY)
execute_process(COMMAND gzip -9nfk "${made}/changelog")
install(FILES "${made}/com.quarrybook.SorterPane.metainfo.xml" DESTINATION share/metainfo)
install(FILES "${packaging}/copyright" "${made}/changelog.gz" "${PROJECT_SOURCE_DIR}/CHANGELOG.md"
              "${PROJECT_SOURCE_DIR}/docs/using.md" "${PROJECT_SOURCE_DIR}/docs/administering.md"
              "${PROJECT_SOURCE_DIR}/docs/reliability.md"
        DESTINATION ${document_folder})
# Those that the documents show.
install(FILES "${PROJECT_SOURCE_DIR}/docs/pictures/pane.png" "${PROJECT_SOURCE_DIR}/docs/pictures/refused.png"
        DESTINATION ${document_folder}/pictures)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME sorter-pane)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Preference pane for the Sorter, Quarrybook's companion")
set(CPACK_PACKAGE_DESCRIPTION
    "The pane starts and stops the Sorter, adds it to the login items, records its\n\
two global hot keys, and keeps the list of applications in whose full-screen\n\
mode it hides.\n\n\
It opens in hosts of preference panes on GNUstep.")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${all_enter})
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION gnustep)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS systempreferences.app)
set(CPACK_SOURCE_GENERATOR TXZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME "sorter-pane-${PROJECT_VERSION}")
set(CPACK_SOURCE_IGNORE_FILES "/build/" "/\\\\.git/" "__pycache__")
include(CPack)
