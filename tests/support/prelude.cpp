// SPDX-License-Identifier: Apache-2.0
// Gives the headers that nearly every test includes a place where they are compiled once.
