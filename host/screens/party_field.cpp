// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/party_field.h"

#include "host/screens/boxes.h"

#include <QAbstractItemView>
#include <QHBoxLayout>

#include <algorithm>

namespace dn::host {
namespace {

constexpr int typingPause = 150; // milliseconds
constexpr int longestName = 255;
constexpr int keyRole = Qt::UserRole;
constexpr int nameRole = Qt::UserRole + 1;

QString describe(const Entity& entity)
{
    QString text = QString::fromStdString(entity.name);
    for (const std::string* detail : {&entity.telephone, &entity.email})
        if (!detail->empty()) text += "  ·  " + QString::fromStdString(*detail);
    return text;
}

} // namespace

PartyField::PartyField(const QString& name, Kind kind, ScreenContext& context, QWidget* parent)
    : QWidget(parent),
      context_(context),
      kind_(kind),
      edit_(new QLineEdit(this)),
      search_(context.database, scope())
{
    setObjectName(name);
    edit_->setObjectName("txt" + name);
    edit_->setMaxLength(longestName);
    offerToClear(*edit_);
    edit_->setPlaceholderText("Escriba las primeras letras para buscar");
    edit_->setAccessibleName(kind == Kind::organisation ? "Organización" : "Persona");
    setFocusPolicy(Qt::StrongFocus); // a label leads its mnemonic to no other
    setFocusProxy(edit_);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(edit_, 1);

    completer_.setModel(&model_);
    completer_.setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer_.setMaxVisibleItems(10);
    completer_.setWidget(edit_); // not the line's own completer: that would show the former matches at each key
    completer_.popup()->setObjectName("lst" + name);
    pause_.setSingleShot(true);
    pause_.setInterval(typingPause);
    connect(edit_, &QLineEdit::textEdited, this, [this] { typedAnew(); });
    connect(edit_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.isEmpty()) typedAnew(); // the clear button edits nothing
    });
    connect(&pause_, &QTimer::timeout, this, [this] { search(); });
    connect(&next_, &QTimer::timeout, this, [this] { goOn(); });
    connect(
        &completer_, qOverload<const QModelIndex&>(&QCompleter::activated), this, [this](const QModelIndex& row) {
            const int key = row.data(keyRole).toInt();
            const QString chosen = row.data(nameRole).toString();
            reporting(window(), [&] { take(key, chosen); }); // whoever is told of the change may ask the server
        });
}

void PartyField::offerNew(const QString& caption, Maker make)
{
    make_ = std::move(make);
    button_ = new QPushButton(caption, this);
    button_->setObjectName("cmd" + objectName());
    button_->setAccessibleName(kind_ == Kind::organisation ? "Nueva organización" : "Nueva persona");
    button_->setAutoDefault(false);
    layout()->addWidget(button_);
    connect(button_, &QPushButton::clicked, this, [this] { makeNew(); });
}

void PartyField::choose(std::int32_t key)
{
    const QString name = nameOf(key);
    take(name.isEmpty() ? 0 : key, name);
}

QString PartyField::nameOf(std::int32_t key) const
{
    if (key == 0) return {};
    const auto entity = findEntity(context_.database, kind_ == Kind::organisation, key);
    return entity ? QString::fromStdString(entity->name) : QString();
}

bool PartyField::resolve()
{
    if (key_ != 0 || isEmpty()) return true;
    stopSearch();
    const std::string name = edit_->text().trimmed().toStdString();
    const auto exact = entitiesNamed(searchEntities(context_.database, name, scope()), name);
    if (exact.size() != 1) return false;
    take(exact.front().key, QString::fromStdString(exact.front().name));
    return true;
}

void PartyField::typedAnew()
{
    key_ = 0;
    completer_.popup()->hide();
    stopSearch();
    if (!isEmpty()) pause_.start();
    if (changed_) changed_();
}

void PartyField::search()
{
    reporting(window(), [this] {
        search_.begin(edit_->text().toStdString());
        offer();
        next_.start(0);
    });
}

// The list shows what came first, and again when all is found, so that it does not flicker.
void PartyField::goOn()
{
    bool more = false;
    reporting(window(), [&] {
        const std::size_t before = search_.found().size();
        more = search_.goOn();
        if (search_.found().size() > before) offer();
    });
    if (!more) next_.stop();
}

void PartyField::stopSearch()
{
    pause_.stop();
    next_.stop();
}

void PartyField::offer()
{
    const int row = completer_.popup()->isVisible() ? completer_.popup()->currentIndex().row() : 0;
    model_.clear();
    for (const Entity& entity : search_.found()) {
        auto* const item = new QStandardItem(describe(entity));
        item->setData(entity.key, keyRole);
        item->setData(QString::fromStdString(entity.name), nameRole);
        model_.appendRow(item);
    }
    if (search_.found().empty() || !edit_->hasFocus()) return;
    completer_.complete();
    completer_.popup()->setCurrentIndex(completer_.completionModel()->index(std::max(row, 0), 0));
}

void PartyField::take(std::int32_t key, const QString& name)
{
    stopSearch();
    edit_->setText(name);
    key_ = key;
    if (changed_) changed_();
}

void PartyField::makeNew()
{
    stopSearch();
    reporting(window(), [this] {
        const std::int32_t key = make_(key_ == 0 ? edit_->text().trimmed() : QString());
        if (key != 0) choose(key);
    });
    edit_->setFocus(Qt::OtherFocusReason);
}

SearchScope PartyField::scope() const
{
    return {.persons = kind_ == Kind::person, .organisations = kind_ == Kind::organisation};
}

} // namespace dn::host
