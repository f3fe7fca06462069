# SPDX-License-Identifier: Apache-2.0
# Takes the search path for libraries out of a program or library: cmake -DFILE=... -P remove-rpath.cmake
file(RPATH_REMOVE FILE "${FILE}")
