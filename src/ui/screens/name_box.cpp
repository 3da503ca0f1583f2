#include "ui/screens/name_box.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>

namespace kelvarine {

namespace {

constexpr int OffersInView = 8;

} // namespace

NameBox::NameBox(QWidget *parent) : QLineEdit(parent), offers(new QCompleter(&names_, this))
{
    offers->setCaseSensitivity(Qt::CaseInsensitive);
    offers->setMaxVisibleItems(OffersInView);
    setCompleter(offers);
}

void NameBox::Offer(const QStringList &names)
{
    if (names != names_.stringList()) {
        names_.setStringList(names);
    }
}

QStringList NameBox::Offered() const
{
    QStringList offered;
    const QAbstractItemModel *model = offers->completionModel();
    for (int row = 0; offers->popup()->isVisible() && row < model->rowCount(); ++row) {
        offered.append(model->index(row, 0).data().toString());
    }
    return offered;
}

// The list of offers would take the key to itself, and the name would need it twice.
void NameBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        offers->popup()->hide();
        event->accept();
        emit Entered();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

} // namespace kelvarine
