// Captioned lines of text one below the other, as short dialogs have them.
#pragma once
#include "common/Przestrzenie.h"
#include <QList>
#include <QWidget>

namespace tornel::okna {

class PoleTekstu;
class SiatkaPol;

enum class Pisownia { Jawna, Ukryta };

/// Enter goes from each line to the next; in the last one it is left to the dialog's default button.
class LinieDialogu : public QWidget {
    Q_OBJECT
public:
    explicit LinieDialogu(QWidget* rodzic = nullptr);

    /// A line that takes at most `dlugosc` characters. Hidden ones show dots in place of letters.
    PoleTekstu* dodaj(const QString& nazwa, const QString& podpis, int dlugosc, Pisownia pisownia);

    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

private:
    SiatkaPol* siatka_;
    QList<PoleTekstu*> linie_;
};

} // namespace tornel::okna
