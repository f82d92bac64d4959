// SPDX-License-Identifier: MIT

// What is compiled here are the headers that CMakeLists.txt names.
