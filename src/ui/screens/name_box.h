// txtFileName: a line for a name or a path, which offers what there is while it is typed.
#pragma once

#include <QLineEdit>
#include <QStringListModel>

class QCompleter;

namespace kelvarine {

class NameBox : public QLineEdit {
    Q_OBJECT

public:
    explicit NameBox(QWidget *parent);

    // What may be meant; those that begin as the text does are offered below the line.
    void Offer(const QStringList &names);

    // What is on offer below the line at the moment.
    [[nodiscard]] QStringList Offered() const;

signals:
    // Enter, whether something is on offer or not.
    void Entered();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QStringListModel names_;
    QCompleter *offers;
};

} // namespace kelvarine
