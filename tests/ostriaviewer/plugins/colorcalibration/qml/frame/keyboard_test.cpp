// SPDX-License-Identifier: Apache-2.0
// Empty for the moment.
