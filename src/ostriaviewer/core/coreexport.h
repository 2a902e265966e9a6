// SPDX-License-Identifier: Apache-2.0
// Marks what the library of host and plugins shows to both.
#pragma once

#include <QtGlobal>

#ifdef OSTRIAVIEWER_CORE_BUILD
#define OSTRIAVIEWER_CORE_EXPORT Q_DECL_EXPORT
#else
#define OSTRIAVIEWER_CORE_EXPORT Q_DECL_IMPORT
#endif
