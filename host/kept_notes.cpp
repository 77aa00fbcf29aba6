// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/kept_notes.h"

#include <QAbstractTextDocumentLayout>

#include <algorithm>

namespace dn::host {
namespace {

constexpr double mostLines = 6;

} // namespace

KeptNotes::KeptNotes(QWidget* parent) : QPlainTextEdit(parent)
{
    setObjectName("txtNotasNoGuardadas");
    setAccessibleName("Notas que no se guardaron");
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setFrameShape(NoFrame);
    viewport()->setAutoFillBackground(false); // it stands on the bar's colours
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            [this] { updateGeometry(); });
}

// The height of a plain document is told in lines, as they are wrapped.
QSize KeptNotes::sizeHint() const
{
    const double lines = std::clamp(document()->size().height(), 1.0, mostLines);
    const double height = lines * fontMetrics().lineSpacing() + 2 * document()->documentMargin();
    return {QPlainTextEdit::sizeHint().width(), static_cast<int>(height) + 2 * frameWidth() + 1};
}

QSize KeptNotes::minimumSizeHint() const { return {0, sizeHint().height()}; }

} // namespace dn::host
