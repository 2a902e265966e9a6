// SPDX-License-Identifier: Apache-2.0
// Gives the headers that most libraries include a place where they are compiled once.
