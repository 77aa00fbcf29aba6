// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator's manual in a window of its own, which stays open beside the work. The pages are those of
// docs/manual, as they are written (Markdown): nothing has to be made of them ahead, and no other program is
// needed to read them.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>

#include <optional>

namespace dn::host {

/// Shows the pages, with the lines of their tables, their pictures no wider than the window, and links to
/// headings.
class ManualPages : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;

private:
    void drawTables();
    void giveAir();
    void goTo(const QString& heading);
};

class ManualWindow : public QWidget {
public:
    /// @param folder with manual.md. @param over the window that it goes with.
    ManualWindow(const QString& folder, QWidget* over);

    ManualPages& pages() { return *pages_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    ManualPages* pages_ = new ManualPages(this);
};

/// What a heading is called in a link: its letters in lower case, with hyphens for the blanks.
QString anchorOf(const QString& heading);

/// Where the manual lies: beside the installed program, or in the sources around the one that was built.
std::optional<QString> manualFolder();

} // namespace dn::host
