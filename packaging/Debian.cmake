# The Debian package. Its tools are needed for packaging, not for building the program.
set(doc "${data}/doc/quend-loan")
pack("${log}" "${made}/changelog.gz")
install(FILES debian/copyright "${made}/changelog.gz" DESTINATION "${doc}")

# Dependencies that the linker cannot know: scripts/packages lists what is loaded by name. Linked libraries
# are read from the program itself, because their packages' names differ between Debian releases.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/scripts/packages")
foreach(how loaded recommended)
  file(STRINGS "${CMAKE_SOURCE_DIR}/scripts/packages" ${how} REGEX "^running .* ${how}$")
  list(TRANSFORM ${how} REPLACE "^running +([^ ]+) .*" "\\1")
  list(JOIN ${how} ", " ${how})
endforeach()
set(CPACK_DEBIAN_PACKAGE_DEPENDS "${loaded}")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "${recommended}")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quend-loan)
set(CPACK_PACKAGE_VENDOR "Quend Halverworks")
set(CPACK_PACKAGE_CONTACT "Quend Halverworks <loan@quend.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://quend.example/loan")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "loan calculator for people shopping for a loan")
set(CPACK_PACKAGE_DESCRIPTION "\
In one window you describe the loan you want, the loan you hold today and up
to sixteen competing offers, and see at once what each costs: the payment,
the payment with escrow, the payoff date and the total interest.

Offers are sorted by payoff date or interest, kept by name and printed.
The command quend-compare compares the offers of a file without a window.
Everything speaks English or Spanish.")
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES OFF) # they were stripped while they were linked: libraries are sealed after that
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/package")
set(CPACK_OUTPUT_FILE_PREFIX "${CPACK_PACKAGE_DIRECTORY}")
include(CPack)
