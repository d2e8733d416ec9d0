// The text and date fields of every screen: entering one selects its text, a date puts its own dashes.
#pragma once
#include "common/Przestrzenie.h"
#include <QLineEdit>

namespace tornel::okna {

/// Puts the caret at 0 and selects the whole text.
void ZaznaczTekst(QLineEdit& pole);
/// Selects the first ten characters, which are the date.
void ZaznaczDate(QLineEdit& pole);

/// A line of text that selects itself on entry, by key or by click.
class PoleTekstu : public QLineEdit {
    Q_OBJECT
public:
    using QLineEdit::QLineEdit;

protected:
    virtual void zaznacz() { ZaznaczTekst(*this); }
    void focusInEvent(QFocusEvent* zdarzenie) override;
    void focusOutEvent(QFocusEvent* zdarzenie) override;
    void mouseReleaseEvent(QMouseEvent* zdarzenie) override;

private:
    bool wejscieMysza_ = false;
    bool czekaNaPowrot_ = false; ///< the focus went to another window or a menu, the field was not left
};

/// A date as dd-mm-yyyy: day and month get their dashes while they are typed at the end, unless a year may
/// stand there ("2001-07-01" stays). What is no date stays until the owner checks it on leaving. F4 or Alt
/// with the arrow down opens a calendar; an empty field hints at its form.
class PoleDaty : public PoleTekstu {
    Q_OBJECT
public:
    explicit PoleDaty(QWidget* rodzic = nullptr);

protected:
    void zaznacz() override { ZaznaczDate(*this); }
    void keyPressEvent(QKeyEvent* zdarzenie) override;
    void contextMenuEvent(QContextMenuEvent* zdarzenie) override;

private:
    void maskuj(const QString& wpisany);
    void otworzKalendarz();
    qsizetype poprzednia_ = 0;
};

} // namespace tornel::okna
