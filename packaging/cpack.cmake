# Packages, by cpack. Included last: it takes what the install rules before it have named.
set(VENTARO_MAINTAINER "Tarnwald <ventaro@tarnwald.invalid>" CACHE STRING "Who a package names as its maintainer")

set(CPACK_PACKAGE_NAME ventaro)
set(CPACK_PACKAGE_VENDOR Tarnwald)
set(CPACK_PACKAGE_CONTACT ${VENTARO_MAINTAINER})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "process monitoring for injection moulding tools")
set(CPACK_PACKAGE_DESCRIPTION_FILE ${CMAKE_CURRENT_LIST_DIR}/description.txt)
set(CPACK_RESOURCE_FILE_README ${CPACK_PACKAGE_DESCRIPTION_FILE})
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

if(WIN32)
    include(${CMAKE_CURRENT_LIST_DIR}/windows/cpack.cmake)
else()
    include(${CMAKE_CURRENT_LIST_DIR}/linux/cpack.cmake)
endif()
include(CPack)
