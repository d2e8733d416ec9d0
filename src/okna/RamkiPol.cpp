#include "okna/RamkiPol.h"
#include <QGroupBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tornel::okna {

QScrollArea* Przewijane(QWidget* pola) {
    auto* obszar = new QScrollArea;
    obszar->setWidget(pola);
    obszar->setWidgetResizable(true);
    obszar->setFrameShape(QFrame::NoFrame);
    obszar->setFocusPolicy(Qt::NoFocus);
    obszar->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    obszar->setMinimumWidth(pola->minimumSizeHint().width() +
                            obszar->verticalScrollBar()->sizeHint().width());
    return obszar;
}

QStringList PolaDoWpisania(const QList<GrupaPol>& grupy) {
    QStringList wynik;
    const auto dodaj = [&](const QList<Pole>& pola) {
        for (const Pole& pole : pola)
            if (pole.dostep == Dostep::Edycja && !pole.nazwa.isEmpty()) wynik.append(pole.nazwa);
    };
    for (const GrupaPol& grupa : grupy) {
        dodaj(grupa.pola);
        for (const Wiazanie::Rzad& rzad : grupa.rzedy) dodaj(rzad.pola);
    }
    return wynik;
}

bool UstawRamki(Wiazanie& wiazanie, QVBoxLayout& uklad, const QList<GrupaPol>& grupy, int najszerszePodpisy) {
    bool notatka = false;
    QList<QGroupBox*> ramki;
    for (const GrupaPol& grupa : grupy) {
        if (!grupa.naglowki.isEmpty()) {
            uklad.addWidget(wiazanie.tabela(grupa.tytul, grupa.naglowki, grupa.rzedy));
            continue;
        }
        QGroupBox* ramka = wiazanie.grupa(grupa.tytul, grupa.pola, grupa.kolumn);
        uklad.addWidget(ramka);
        ramki.append(ramka);
        for (const Pole& pole : grupa.pola) {
            if (pole.rodzaj != Rodzaj::Notatka) continue;
            notatka = true;
            uklad.setStretchFactor(ramka, 1);
            if (pole.podpis.isEmpty())
                wiazanie.kontrolka(pole.nazwa)->setAccessibleName(nazwaDostepna(grupa.tytul));
        }
    }
    wyrownajPodpisy(ramki, najszerszePodpisy > 0 ? najszerszePodpisy : QWIDGETSIZE_MAX);
    return notatka;
}

QTabWidget* ZakladkiPol(Wiazanie& wiazanie, const QString& nazwa, const QList<GrupaPol>& grupy,
                        int najszerszePodpisy) {
    auto* karty = new QTabWidget;
    karty->setObjectName(nazwa);
    QStringList tytuly;
    for (const GrupaPol& grupa : grupy)
        if (!tytuly.contains(grupa.zakladka)) tytuly.append(grupa.zakladka);
    for (const QString& tytul : std::as_const(tytuly)) {
        QList<GrupaPol> naKarcie;
        for (const GrupaPol& grupa : grupy)
            if (grupa.zakladka == tytul) naKarcie.append(grupa);
        auto* strona = new QWidget;
        auto* uklad = new QVBoxLayout(strona);
        if (!UstawRamki(wiazanie, *uklad, naKarcie, najszerszePodpisy)) uklad->addStretch(1);
        karty->addTab(Przewijane(strona), tytul);
    }
    return karty;
}

} // namespace tornel::okna
