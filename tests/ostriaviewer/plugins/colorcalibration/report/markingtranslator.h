// SPDX-License-Identifier: Apache-2.0
// A language that shows what is translated, and in which context.
#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// Puts "<context>:" before every text, as long as it lives.
class MarkingTranslator : public QTranslator
{
public:
    MarkingTranslator() { QCoreApplication::installTranslator(this); }
    ~MarkingTranslator() override { QCoreApplication::removeTranslator(this); }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return QString(context) + ':' + text;
    }
    bool isEmpty() const override { return false; }
};
