// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/desktop/manual_window.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>
#include <QVBoxLayout>

namespace dn::host {
namespace {

QString indexOf(const QString& folder) { return folder + "/manual.md"; }

} // namespace

QVariant ManualPages::loadResource(int type, const QUrl& name)
{
    if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
    QImage picture(source().resolved(name).toLocalFile());
    const int room = viewport()->width() - 2 * static_cast<int>(document()->documentMargin());
    if (picture.width() <= room) return picture;
    const qreal scale = devicePixelRatioF();
    picture = picture.scaledToWidth(static_cast<int>(room * scale), Qt::SmoothTransformation);
    picture.setDevicePixelRatio(scale);
    return picture;
}

void ManualPages::doSetSource(const QUrl& name, QTextDocument::ResourceType)
{
    const bool isPage = name.path().endsWith(QLatin1String(".md"));
    QTextBrowser::doSetSource(name, isPage ? QTextDocument::MarkdownResource : QTextDocument::UnknownResource);
    drawTables();
    giveAir();
    if (name.hasFragment()) goTo(name.fragment(QUrl::FullyDecoded));
}

// A table comes out of the text without a line or any air.
void ManualPages::drawTables()
{
    for (QTextFrame* const frame : document()->rootFrame()->childFrames()) {
        auto* const table = qobject_cast<QTextTable*>(frame);
        if (table == nullptr) continue;
        QTextTableFormat format = table->format();
        format.setBorder(1);
        format.setBorderCollapse(true);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(palette().mid());
        format.setCellSpacing(0);
        format.setCellPadding(4);
        table->setFormat(format);
    }
}

void ManualPages::giveAir()
{
    constexpr int air = 6; // logical pixels
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        if (cursor.currentTable() != nullptr) continue;
        QTextBlockFormat format = block.blockFormat();
        format.setBottomMargin(air);
        cursor.setBlockFormat(format);
    }
}

// The bar can go no further than what has been laid out.
void ManualPages::goTo(const QString& heading)
{
    const QAbstractTextDocumentLayout& layout = *document()->documentLayout();
    static_cast<void>(layout.documentSize());
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0 || anchorOf(block.text()) != heading) continue;
        setTextCursor(QTextCursor(block)); // the next Tab goes on from there
        verticalScrollBar()->setValue(static_cast<int>(layout.blockBoundingRect(block).top()));
        return;
    }
}

ManualWindow::ManualWindow(const QString& folder, QWidget* over) : QWidget(over, Qt::Window)
{
    setObjectName("Manual");
    setWindowTitle("Manual");
    setAttribute(Qt::WA_DeleteOnClose);
    pages_->setObjectName("Paginas");
    pages_->setAccessibleName("Página del manual");
    pages_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // where it came later, the page would move below it
    auto* const index = new QPushButton("Í&ndice", this);
    auto* const back = new QPushButton("&Atrás", this);
    auto* const forth = new QPushButton("A&delante", this);
    connect(index, &QPushButton::clicked, this,
            [this, folder] { pages_->setSource(QUrl::fromLocalFile(indexOf(folder))); });
    connect(back, &QPushButton::clicked, pages_, &QTextBrowser::backward);
    connect(forth, &QPushButton::clicked, pages_, &QTextBrowser::forward);
    connect(pages_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(pages_, &QTextBrowser::forwardAvailable, forth, &QWidget::setEnabled);
    back->setEnabled(false);
    forth->setEnabled(false);
    auto* const buttons = new QHBoxLayout;
    for (QPushButton* const button : {back, forth, index})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(pages_, 1);
    resize(QSize(860, 760).boundedTo(screen()->availableGeometry().size()));
    layout->activate(); // the pictures take the width that there is
    pages_->setSource(QUrl::fromLocalFile(indexOf(folder)));
    pages_->setFocus();
}

void ManualWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

QString anchorOf(const QString& heading)
{
    QString anchor;
    for (const QChar letter : heading.toLower())
        if (letter == u' ' || letter == u'-')
            anchor.append(u'-');
        else if (letter.isLetterOrNumber() || letter == u'_')
            anchor.append(letter);
    return anchor;
}

std::optional<QString> manualFolder()
{
    QDir place(QApplication::applicationDirPath());
    const QString installed = QDir::cleanPath(place.filePath("../share/dncontacts"));
    if (QFile::exists(indexOf(installed))) return installed;
    do {
        if (const QString folder = place.filePath("docs"); QFile::exists(indexOf(folder))) return folder;
    } while (place.cdUp());
    return std::nullopt;
}

} // namespace dn::host
