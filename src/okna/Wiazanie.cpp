#include "okna/Wiazanie.h"
#include "common/Blad.h"
#include "okna/Kontrolki.h"
#include "okna/PoleTekstu.h"
#include "okna/UwagaPola.h"
#include "okna/Wyglad.h"
#include "okna/ZnakZmiany.h"
#include "store/Recordset.h"
#include <algorithm>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QVBoxLayout>
#include <stdexcept>
#include <utility>

namespace tornel::okna {

namespace {

/// The value in the form that the column's type stores.
Wartosc wTypie(Typ typ, const Wartosc& wartosc) {
    const auto* kwota = std::get_if<Waluta>(&wartosc);
    const auto* liczba = std::get_if<qint64>(&wartosc);
    if (typ == Typ::Currency && liczba) return Waluta::zlotych(*liczba);
    if ((typ == Typ::Single || typ == Typ::Double) && kwota) return kwota->naLiczbe();
    const bool tekstowa = typ == Typ::Text || typ == Typ::Char || typ == Typ::Memo;
    if (tekstowa && liczba) return QString::number(*liczba);
    if (tekstowa && kwota) return FormatKwoty(*kwota);
    return wartosc;
}

/// Whether the focus goes to another field. To a menu or another window it is only lent; a window that closes
/// takes it away in the same manner, and whether its fields count is for its owner to say.
bool opuszczaPole(const QFocusEvent& zdarzenie) {
    const auto powod = zdarzenie.reason();
    return powod != Qt::PopupFocusReason && powod != Qt::ActiveWindowFocusReason &&
           powod != Qt::MenuBarFocusReason;
}

} // namespace

Recordset& ZrodloWierszy::tabela(const Pole& pole) const {
    const auto ta = std::ranges::find_if(
        tabele_, [&](const Recordset* rs) { return &rs->tabela() == pole.kolumna.tabela; });
    if (ta == tabele_.end()) throw std::out_of_range("no table for field " + pole.nazwa.toStdString());
    return **ta;
}

Wartosc ZrodloWierszy::czytaj(const Pole& pole) const {
    const Recordset& rs = tabela(pole);
    return rs.naWierszu() ? rs.wartosc(pole.kolumna) : Wartosc(Null);
}

void ZrodloWierszy::zapisz(const Pole& pole, const Wartosc& wartosc) {
    tabela(pole).ustaw(pole.kolumna, wTypie(pole.kolumna.def().typ, wartosc));
}

Wiazanie::Wiazanie(ZrodloPol& zrodlo, QObject* rodzic) : QObject(rodzic), zrodlo_(zrodlo) {}

QGroupBox* Wiazanie::grupa(const QString& tytul, const QList<Pole>& pola, int kolumn, BezPodpisu bezPodpisu) {
    auto* ramka = new QGroupBox(tytul);
    auto* uklad = new QVBoxLayout(ramka);
    uklad->addWidget(siatka(pola, kolumn, bezPodpisu));
    return ramka;
}

QWidget* Wiazanie::siatka(const QList<Pole>& pola, int kolumn, BezPodpisu bezPodpisu) {
    auto* siatka = new SiatkaPol(kolumn, bezPodpisu);
    for (const Pole& pole : pola) dodaj(pole, *siatka);
    siatka->uloz();
    return siatka;
}

void Wiazanie::dodaj(const Pole& pole, SiatkaPol& siatka) {
    const bool pierwsze = kontrolki_.empty() || kontrolki_.back().siatka != &siatka;
    const Kontrolka* poprzednia = pierwsze ? nullptr : &kontrolki_.back();
    Kontrolka& k = nowa(pole);
    k.siatka = &siatka;
    if (poprzednia && pole.podpis.isEmpty()) {
        k.podpis = poprzednia->podpis;
        k.miejsce = poprzednia->miejsce;
        siatka.dolacz(k.miejsce, k.widzet);
        k.widzet->setAccessibleName(poprzednia->widzet->accessibleName());
    } else {
        if (pole.rodzaj != Rodzaj::Flaga && !pole.podpis.isEmpty()) {
            k.podpis = new QLabel(pole.podpis);
            k.podpis->setTextFormat(Qt::PlainText);
            k.podpis->setBuddy(k.widzet);
            if (pole.rodzaj == Rodzaj::Notatka) k.podpis->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        }
        k.miejsce = siatka.dodaj(k.podpis, k.widzet);
        k.widzet->setAccessibleName(nazwaDostepna(pole.podpis));
    }
    gotowa(k);
}

Wiazanie::Kontrolka& Wiazanie::nowa(const Pole& pole) {
    Kontrolka& k = kontrolki_.emplace_back();
    k.pole = pole;
    k.widzet = zbudujKontrolke(pole);
    return k;
}

void Wiazanie::gotowa(Kontrolka& k) {
    if (!k.pole.opis.isEmpty()) {
        k.widzet->setAccessibleName(k.pole.opis);
        const QString podpowiedz = k.widzet->toolTip();
        k.widzet->setToolTip(podpowiedz.isEmpty() ? k.pole.opis
                                                  : k.pole.opis + QLatin1Char('\n') + podpowiedz);
    }
    poNazwie_.insert(k.pole.nazwa, &k);
    poWidzecie_.insert(k.widzet, &k);
    pokazTekst(k, tekstWartosci(k.pole, Null));
    podlacz(k);
}

QGroupBox* Wiazanie::tabela(const QString& tytul, const QStringList& naglowki, const QList<Rzad>& rzedy) {
    auto* ramka = new QGroupBox(tytul);
    auto* siatka = new QGridLayout(ramka);
    siatka->setHorizontalSpacing(Wyglad::kSiatka);
    siatka->setVerticalSpacing(Wyglad::kSiatka / 2);
    siatka->setColumnStretch(0, 1);
    const auto napis = [&](const QString& tekst, int wiersz, int kolumna, Qt::Alignment ulozenie) {
        auto* etykieta = new QLabel(tekst);
        etykieta->setTextFormat(Qt::PlainText);
        etykieta->setWordWrap(true);
        etykieta->setAlignment(ulozenie);
        siatka->addWidget(etykieta, wiersz, kolumna);
        return etykieta;
    };
    for (int kolumna = 0; kolumna < naglowki.size(); ++kolumna)
        napis(naglowki[kolumna], 0, kolumna + 1, Qt::AlignBottom | Qt::AlignHCenter)
            ->setProperty("podpowiedz", true);
    for (int wiersz = 0; wiersz < rzedy.size(); ++wiersz) {
        const Rzad& rzad = rzedy[wiersz];
        QLabel* podpis = napis(rzad.podpis, wiersz + 1, 0, Qt::AlignLeft | Qt::AlignVCenter);
        for (int kolumna = 0; kolumna < rzad.pola.size(); ++kolumna) {
            if (rzad.pola[kolumna].nazwa.isEmpty()) continue;
            Kontrolka& k = nowa(rzad.pola[kolumna]);
            siatka->addWidget(k.widzet, wiersz + 1, kolumna + 1, Qt::AlignVCenter);
            k.widzet->setAccessibleName(nazwaDostepna(rzad.podpis) + u' ' +
                                        nazwaDostepna(naglowki.value(kolumna)));
            if (!podpis->buddy()) podpis->setBuddy(k.widzet);
            gotowa(k);
        }
    }
    return ramka;
}

void Wiazanie::podlacz(Kontrolka& k) {
    k.widzet->installEventFilter(this);
    const auto zmiana = [this, &k] {
        k.sprawdzona = false;
        oznacz(k);
        emit zmienione(k.pole.nazwa);
    };
    // A click or a choice is a whole act: the field is changed and done with at once.
    const auto czyn = [this, &k] {
        emit zmienione(k.pole.nazwa);
        opusc(k);
    };
    if (auto* linia = qobject_cast<QLineEdit*>(k.widzet)) {
        connect(linia, &QLineEdit::textEdited, this, zmiana);
        connect(linia, &QLineEdit::returnPressed, this, &Wiazanie::zakoncz);
    } else if (auto* flaga = qobject_cast<QCheckBox*>(k.widzet)) {
        connect(flaga, &QCheckBox::clicked, this, czyn);
    } else if (auto* lista = qobject_cast<QComboBox*>(k.widzet)) {
        connect(lista, &QComboBox::activated, this, czyn);
    } else if (auto* pudlo = qobject_cast<QPlainTextEdit*>(k.widzet)) {
        connect(pudlo, &QPlainTextEdit::textChanged, this, zmiana);
    }
}

bool Wiazanie::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
    const auto ta = poWidzecie_.constFind(obiekt);
    auto* widzet = qobject_cast<QWidget*>(obiekt);
    if (ta == poWidzecie_.constEnd() || !widzet) return QObject::eventFilter(obiekt, zdarzenie);
    Kontrolka& k = **ta;
    switch (zdarzenie->type()) {
    case QEvent::FocusIn:
        // A field that a message took the focus from has not been left yet.
        if (wPracy_ && wPracy_ != &k) opusc(*wPracy_);
        if (wPracy_ != &k) {
            k.przyWejsciu = tekstKontrolki(*widzet);
            k.sprawdzona = false;
        }
        wPracy_ = &k;
        break;
    case QEvent::FocusOut:
        if (wPracy_ == &k && opuszczaPole(static_cast<const QFocusEvent&>(*zdarzenie))) opusc(k);
        break;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress: {
        auto& klawisz = static_cast<QKeyEvent&>(*zdarzenie);
        if (!klawisz.matches(QKeySequence::Undo) || !k.przedZmiana) break;
        if (zdarzenie->type() == QEvent::KeyPress) return cofnij(k);
        klawisz.accept();
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(obiekt, zdarzenie);
}

void Wiazanie::pokazTekst(Kontrolka& k, const QString& tekst) {
    wpiszDoKontrolki(*k.widzet, tekst);
    k.wczytany = tekstKontrolki(*k.widzet);
    k.przyWejsciu = k.wczytany;
    oznacz(k);
}

void Wiazanie::oznacz(Kontrolka& k) {
    if (k.pole.dostep == Dostep::Odczyt) return;
    ZnakZmiany::ustaw(*k.widzet, zmieniona(k) || zrodlo_.czekaNaZapis(k.pole));
}

void Wiazanie::odswiezZnaki() {
    for (Kontrolka& k : kontrolki_) oznacz(k);
}

void Wiazanie::zapomnij(Kontrolka& k) {
    k.przedZmiana.reset();
    powiedz(k, {});
}

void Wiazanie::opusc(Kontrolka& k) {
    if (wPracy_ == &k) wPracy_ = nullptr;
    const QString bylo = k.przyWejsciu;
    const QString wpisany = tekstKontrolki(*k.widzet);
    // A text that nobody touched stays as it is, whatever the field would make of it.
    const bool wpisano = wpisany != bylo;
    QString uwaga = wpisano ? nieZrozumiano(k.pole, wpisany) : QString();
    QString tekst = wpisano ? uporzadkuj(k.pole, wpisany) : bylo;
    const bool sprawdzona = std::exchange(k.sprawdzona, true);
    if (k.sprawdzenie && (wpisano || !sprawdzona)) {
        const Sprawdzony sprawdzony = k.sprawdzenie(tekst, bylo);
        tekst = sprawdzony.tekst;
        if (uwaga.isEmpty()) uwaga = sprawdzony.uwaga;
    }
    k.przyWejsciu = tekst;
    if (tekst != tekstKontrolki(*k.widzet)) wpiszDoKontrolki(*k.widzet, tekst);
    if (!uwaga.isEmpty() && !bylo.isEmpty() && bylo != tekst)
        uwaga += QStringLiteral(" Ctrl+Z przywraca %1.").arg(bylo);
    oznacz(k);
    if (wpisano || !uwaga.isEmpty()) powiedz(k, uwaga);
    if (tekst == bylo) return;
    k.przedZmiana = bylo;
    if (!wpisano) emit zmienione(k.pole.nazwa); // the check's doing
    const QScopedValueRollback mowi(mowiOOpuszczeniu_, true);
    emit opuszczone(k.pole.nazwa);
}

void Wiazanie::powiedz(Kontrolka& k, const QString& uwaga) {
    if (uwaga.isEmpty() && !k.zUwaga) return;
    k.zUwaga = !uwaga.isEmpty();
    UwagaPola::ustaw(*k.widzet, uwaga);
    if (!k.zUwaga) return;
    wlasnieNieZrozumiano_ = true;
    QMetaObject::invokeMethod(
        this, [this] { wlasnieNieZrozumiano_ = false; }, Qt::QueuedConnection);
}

bool Wiazanie::cofnij(Kontrolka& k) {
    const auto* linia = qobject_cast<QLineEdit*>(k.widzet);
    // What is being typed the field undoes by itself.
    if (!linia || linia->isReadOnly() || linia->isUndoAvailable()) return false;
    const QString tekst = *k.przedZmiana;
    zapomnij(k);
    wpiszDoKontrolki(*k.widzet, tekst);
    k.sprawdzona = false;
    oznacz(k);
    emit zmienione(k.pole.nazwa);
    return true;
}

void Wiazanie::zakoncz() {
    if (!wPracy_ || tekstKontrolki(*wPracy_->widzet) == wPracy_->przyWejsciu) return;
    Kontrolka& k = *wPracy_;
    opusc(k);
    if (!k.widzet->hasFocus() || wPracy_) return;
    wPracy_ = &k;
    if (auto* linia = qobject_cast<QLineEdit*>(k.widzet)) ZaznaczTekst(*linia);
}

void Wiazanie::pokazWszystkie() {
    for (Kontrolka& k : kontrolki_) {
        pokazTekst(k, tekstWartosci(k.pole, zrodlo_.czytaj(k.pole)));
        if (auto* linia = qobject_cast<QLineEdit*>(k.widzet); linia && linia->hasFocus())
            ZaznaczTekst(*linia);
    }
}

void Wiazanie::wczytaj() {
    if (!mowiOOpuszczeniu_)
        for (Kontrolka& k : kontrolki_) zapomnij(k);
    pokazWszystkie();
}

void Wiazanie::odswiez() { pokazWszystkie(); }

void Wiazanie::czysc() {
    for (Kontrolka& k : kontrolki_) {
        zapomnij(k);
        pokazTekst(k, tekstWartosci(k.pole, Null));
    }
}

bool Wiazanie::zmieniona(const Kontrolka& k) const {
    if (k.pole.dostep == Dostep::Odczyt) return false;
    const QString jest = tekstKontrolki(*k.widzet);
    return jest != k.wczytany && uporzadkuj(k.pole, jest) != k.wczytany;
}

void Wiazanie::zbierz() {
    zakoncz();
    for (Kontrolka& k : kontrolki_) {
        if (!zmieniona(k)) continue;
        const QString tekst = uporzadkuj(k.pole, tekstKontrolki(*k.widzet));
        zrodlo_.zapisz(k.pole, wartoscTekstu(k.pole, tekst));
        k.wczytany = tekst;
        oznacz(k);
    }
}

bool Wiazanie::jestZmiana() const {
    return std::ranges::any_of(kontrolki_, [this](const Kontrolka& k) { return zmieniona(k); });
}

void Wiazanie::blokuj(bool zablokowane) {
    for (Kontrolka& k : kontrolki_)
        if (k.pole.dostep == Dostep::Edycja) k.widzet->setEnabled(!zablokowane);
}

Wiazanie::Kontrolka& Wiazanie::znajdz(const QString& nazwa) const {
    const auto ta = poNazwie_.constFind(nazwa);
    if (ta == poNazwie_.constEnd()) throw std::out_of_range("no field " + nazwa.toStdString());
    return **ta;
}

QString Wiazanie::tekst(const QString& nazwa) const { return tekstKontrolki(*znajdz(nazwa).widzet); }

Wartosc Wiazanie::wartosc(const QString& nazwa) const {
    const Kontrolka& k = znajdz(nazwa);
    return wartoscTekstu(k.pole, uporzadkuj(k.pole, tekstKontrolki(*k.widzet)));
}

void Wiazanie::ustawTekst(const QString& nazwa, const QString& tekst) {
    Kontrolka& k = znajdz(nazwa);
    const QString nowy = uporzadkuj(k.pole, tekst);
    if (nowy == tekstKontrolki(*k.widzet)) return;
    wpiszDoKontrolki(*k.widzet, nowy);
    k.przyWejsciu = nowy;
    oznacz(k);
    if (k.pole.dostep == Dostep::Edycja) emit zmienione(nazwa);
}

void Wiazanie::ustawPozycje(const QString& nazwa, const QList<Pozycja>& pozycje) {
    Kontrolka& k = znajdz(nazwa);
    k.pole.pozycje = pozycje;
    wypelnijWybor(*k.widzet, k.pole);
}

void Wiazanie::sprawdzaj(const QString& nazwa, Sprawdzenie sprawdzenie) {
    znajdz(nazwa).sprawdzenie = std::move(sprawdzenie);
}

QWidget* Wiazanie::kontrolka(const QString& nazwa) const { return znajdz(nazwa).widzet; }

void Wiazanie::ustawPodpis(const QString& nazwa, const QString& podpis) {
    Kontrolka& k = znajdz(nazwa);
    if (auto* flaga = qobject_cast<QCheckBox*>(k.widzet))
        flaga->setText(podpis);
    else if (k.podpis)
        k.podpis->setText(podpis);
    k.widzet->setAccessibleName(nazwaDostepna(podpis));
}

void Wiazanie::dolacz(const QString& nazwa, QWidget* widzet) {
    Kontrolka& k = znajdz(nazwa);
    k.siatka->dolacz(k.miejsce, widzet, k.widzet);
}

void Wiazanie::ustawDopisek(const QString& nazwa, const QString& dopisek) {
    Kontrolka& k = znajdz(nazwa);
    if (!k.dopisek) {
        k.dopisek = new QLabel;
        k.dopisek->setTextFormat(Qt::PlainText);
        k.siatka->dolacz(k.miejsce, k.dopisek);
    }
    k.dopisek->setText(dopisek);
}

void Wiazanie::pokaz(const QHash<QString, bool>& widoczne) {
    QList<SiatkaPol*> naruszone;
    for (auto i = widoczne.begin(); i != widoczne.end(); ++i) {
        const Kontrolka& k = znajdz(i.key());
        k.siatka->pokaz(k.miejsce, i.value());
        if (!naruszone.contains(k.siatka)) naruszone.append(k.siatka);
    }
    for (SiatkaPol* siatka : naruszone) siatka->uloz();
}

} // namespace tornel::okna
