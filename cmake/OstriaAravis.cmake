# SPDX-License-Identifier: Apache-2.0
# Aravis, the GenICam library. Its pkg-config file needs that of libusb.

find_package(PkgConfig REQUIRED)
pkg_check_modules(ARAVIS REQUIRED IMPORTED_TARGET aravis-0.8)
