// SPDX-License-Identifier: Apache-2.0
// What every catalogue must fulfil. Each check fails the running test for each message at fault.
#pragma once

#include "catalogue.h"

namespace Translation {

void expectAllTranslated(const QVector<Message>& messages);
void expectNoneTwice(const QVector<Message>& messages);

/// Tags, place holders, line breaks, mnemonics and dots of commands.
void expectMarkupKept(const QVector<Message>& messages);

/// A mnemonic of a language without Latin letters stands in brackets at the end.
void expectMnemonicsInBrackets(const QVector<Message>& messages);

/// A sentence stays a sentence, and a label a label.
void expectFullStopsKept(const QVector<Message>& messages);

/// \param compiled  what the build has made of it
void expectCompiled(const QVector<Message>& messages, const QString& compiled);

} // namespace Translation
