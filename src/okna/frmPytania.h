// All questions of an action in one dialog, answered before the action begins.
#pragma once
#include "okna/Okno.h"
#include <QList>
#include <vector>

class QPushButton;
class QRadioButton;

namespace tornel::okna {

/// Nothing is answered in advance: "&Dalej" opens when every question has its answer. A question that another
/// one's answer makes idle is closed. Keys: T and N answer the question in work and go on to the next.
class frmPytania : public Okno {
    Q_OBJECT
public:
    frmPytania(const QString& tytul, const QList<PytanieAkcji>& pytania, QWidget* rodzic = nullptr);

    /// By question; No for an idle one.
    [[nodiscard]] QList<bool> odpowiedzi() const;

    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

private:
    struct Wiersz {
        QWidget* ramka;
        QRadioButton* tak;
        QRadioButton* nie;
        int zalezneOd;
    };

    [[nodiscard]] QWidget* wiersz(const PytanieAkcji& pytanie, int nr);
    [[nodiscard]] bool czynne(const Wiersz& wiersz) const;
    void ustawDostepnosc();
    void odpowiedz(std::size_t nr, QRadioButton* wybrana);

    std::vector<Wiersz> wiersze_;
    QPushButton* cmdDalej_;
};

} // namespace tornel::okna
