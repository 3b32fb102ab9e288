# Read by CPack once for each kind of package.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr/lib)
  set(CPACK_COMPONENTS_ALL program desktop)
else()
  set(CPACK_PACKAGING_INSTALL_PREFIX /)
  set(CPACK_COMPONENTS_ALL program)
endif()
