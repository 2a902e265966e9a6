// SPDX-License-Identifier: Apache-2.0
// Answers at once.
#include "filedialogdouble.h"

QUrl FileDialogDouble::s_answer;
QUrl FileDialogDouble::s_folder;

void FileDialogDouble::open()
{
    s_folder = m_folder;
    m_fileUrl = s_answer;
    if (s_answer.isEmpty())
        emit rejected();
    else
        emit accepted();
}
