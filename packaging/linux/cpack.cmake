# SPDX-License-Identifier: MIT

# The archive runs from any folder; the package lies in /usr.
if(CPACK_GENERATOR STREQUAL TXZ)
  set(CPACK_PACKAGING_INSTALL_PREFIX /)
endif()
