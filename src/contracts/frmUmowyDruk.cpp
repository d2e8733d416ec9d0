// The screens of contracts: what is shown, its sums, and what is printed and paid.
#include "bank/Wyplaty.h"
#include "common/Rozmowa.h"
#include "contracts/frmUmowy.h"
#include "okna/WidokListy.h"
#include "personnel/frmData.h"
#include "store/Sesja.h"
#include <algorithm>
#include <QCheckBox>
#include <QCollator>
#include <QComboBox>
#include <QLabel>
#include <QMap>
#include <QSignalBlocker>

namespace tornel::contracts {

namespace {

/// Fills the choice and keeps what is chosen while it is still there.
void wypelnij(QComboBox& wybor, const QString& wszystko, const QList<std::pair<QString, qint64>>& pozycje) {
    const QSignalBlocker cisza(wybor);
    const QVariant wybrane = wybor.currentData();
    wybor.clear();
    wybor.addItem(wszystko);
    for (const auto& [napis, id] : pozycje) wybor.addItem(napis, id);
    wybor.setCurrentIndex(wybrane.isValid() ? std::max(0, wybor.findData(wybrane)) : 0);
}

const bank::RodzajWyplat& rodzajPrzelewow(const RodzajUmowy& rodzaj) {
    const std::string_view nazwa = rodzaj.tabela->nazwa;
    return *bank::rodzajWyplat(QString::fromLatin1(nazwa.data(), static_cast<qsizetype>(nazwa.size())));
}

} // namespace

// --- what is shown
// -----------------------------------------------------------------------------------------------

void frmUmowy::wypelnijFiltr(const QList<LiniaUmowy>& umowy) {
    QMap<int, qint64> lata;
    QMap<qint64, QString> osoby;
    for (const LiniaUmowy& l : umowy) {
        if (l.zawarta.isValid()) lata.insert(-l.zawarta.year(), l.zawarta.year());
        if (!osoby.contains(l.prcId)) osoby.insert(l.prcId, l.nazwisko + QLatin1Char(' ') + l.imie);
    }
    QList<std::pair<QString, qint64>> pozycjeLat, pozycjeOsob;
    for (const qint64 rok : std::as_const(lata)) pozycjeLat.append({QString::number(rok), rok});
    for (auto o = osoby.begin(); o != osoby.end(); ++o) pozycjeOsob.append({o.value(), o.key()});
    const QCollator polski(QLocale(QLocale::Polish, QLocale::Poland));
    std::ranges::stable_sort(
        pozycjeOsob, [&](const auto& a, const auto& b) { return polski.compare(a.first, b.first) < 0; });
    wypelnij(*cboRok_, QStringLiteral("Wszystkie lata"), pozycjeLat);
    wypelnij(*cboOsoba_, QStringLiteral("Wszystkie osoby"), pozycjeOsob);
    // A year or person that is gone no longer filters.
    if (cboRok_->currentIndex() == 0) filtr_.rok.reset();
    if (cboOsoba_->currentIndex() == 0) filtr_.prcId.reset();
}

void frmUmowy::filtruj() {
    const auto ustaw = [this](QComboBox& wybor, std::optional<qint64> wartosc) {
        wybor.setCurrentIndex(wartosc ? std::max(0, wybor.findData(*wartosc)) : 0);
    };
    if (!Wpisz()) {
        ustaw(*cboRok_, filtr_.rok);
        ustaw(*cboOsoba_, filtr_.prcId);
        chkNiewyplacone_->setChecked(filtr_.niewyplacone);
        return;
    }
    const QVariant rok = cboRok_->currentData(), osoba = cboOsoba_->currentData();
    filtr_.rok = rok.isValid() ? std::optional(rok.toInt()) : std::nullopt;
    filtr_.prcId = osoba.isValid() ? std::optional(osoba.toLongLong()) : std::nullopt;
    filtr_.niewyplacone = chkNiewyplacone_->isChecked();
    QWidget* mial = focusWidget();
    Wczytaj(biezacy());
    if (mial) mial->setFocus();
}

void frmUmowy::odslon(qint64 id) {
    const auto linia = umowy_->linia(id);
    if (!linia || filtr_.pasuje(*linia)) return;
    filtr_ = {};
    cboRok_->setCurrentIndex(0);
    cboOsoba_->setCurrentIndex(0);
    chkNiewyplacone_->setChecked(false);
}

void frmUmowy::pokazSumy() {
    const ListaModel& model = lista().lista();
    SumaUmow suma;
    for (int i = 0; i < model.rowCount(); ++i)
        if (const auto linia = linie_.constFind(model.id(i)); linia != linie_.constEnd()) suma.dodaj(*linia);
    labSumy_->setText(QStringLiteral("Na liście: %1, brutto %2 zł, netto %3 zł")
                          .arg(suma.ile)
                          .arg(FormatKwoty(suma.brutto), FormatKwoty(suma.netto)));
}

// --- what is printed and paid
// ------------------------------------------------------------------------------------

void frmUmowy::drukuj(DrukUmow co) {
    if (!Wpisz()) return;
    const bool jednej = co == DrukUmow::Umowa || co == DrukUmow::Rachunek || co == DrukUmow::Przelew;
    if (jednej && biezacy() < 0)
        return o_.rozmowa.komunikat(QStringLiteral("Na liście nie ma zaznaczonej umowy."), Styl::Informacja);
    const bank::ZrodloPrzelewow zrodlo{.umowy = &rodzajPrzelewow(rodzaj_)};
    switch (co) {
    case DrukUmow::Umowa:
        return porty_.wydruki.umowa(rodzaj_, biezacy(), this);
    case DrukUmow::Rachunek:
        return rachunek();
    case DrukUmow::Przelew: {
        bank::ZrodloPrzelewow jeden = zrodlo;
        jeden.umowa = biezacy();
        (void)bank::DrukujPrzelewy(o_, bank::KomuPrzelew::Osoby, jeden, porty_.przelewy, this);
        return;
    }
    case DrukUmow::PrzelewyOkresu:
        return przelewyOkresu(bank::KomuPrzelew::Osoby);
    case DrukUmow::PrzelewyPodatku:
        return przelewyOkresu(bank::KomuPrzelew::Urzedy);
    case DrukUmow::MultiCash:
        if (!bank::PrzelewyDoMultiCash(o_, zrodlo, this)) return;
        umowy_->Odswiez(); // the marks are in the file
        Wczytaj(biezacy());
        return;
    case DrukUmow::Zestawienie:
        return zestawienie();
    }
}

void frmUmowy::przelewyOkresu(bank::KomuPrzelew komu) {
    const bool podatek = komu == bank::KomuPrzelew::Urzedy;
    frmData okno(podatek ? QStringLiteral("Podatek od umów wypłaconych w dniach")
                         : QStringLiteral("Przelewy z umów zawartych w dniach"),
                 {}, this);
    const RokMies teraz = RokMies::dnia(QDate::currentDate());
    okno.ustawZakres({teraz.pierwszyDzien(), teraz.ostatniDzien()});
    if (okno.exec() != Accepted) return;
    const ZakresDat zakres = okno.zakres();
    (void)bank::DrukujPrzelewy(o_, komu,
                               {.umowy = &rodzajPrzelewow(rodzaj_), .od = zakres.od, .dokad = zakres.dokad},
                               porty_.przelewy, this);
    pokazPrzypomnienie();
}

void frmUmowy::rachunek() {
    const Recordset& rs = umowy_->tabela();
    // The bill is joined with the office, so without one it has nothing to print, deliberately.
    if (!o_.sesja.rsUS.szukaj(rs.liczba(rodzaj_.kolumna("us_id"))))
        o_.rozmowa.komunikat(ekran_.bezUrzedu.toString(), Styl::Wykrzyknik);
    porty_.wydruki.rachunek(rodzaj_, biezacy(), this);
}

void frmUmowy::zestawienie() {
    QList<qint64> klucze;
    const ListaModel& model = lista().lista();
    for (int i = 0; i < model.rowCount(); ++i) klucze.append(model.id(i));
    QStringList tytul{ekran_.tytul.toString()};
    if (filtr_.rok) tytul += QString::number(*filtr_.rok);
    if (filtr_.prcId) tytul += cboOsoba_->currentText();
    if (filtr_.niewyplacone) tytul += QStringLiteral("niewypłacone");
    porty_.wydruki.zestawienie(rodzaj_, tytul.join(QStringLiteral(", ")), klucze, this);
}

} // namespace tornel::contracts
