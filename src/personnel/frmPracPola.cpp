#include "personnel/frmPracPola.h"
#include "personnel/frmPracTabele.h"
#include "rules/SkladnikiPlac.h"

namespace tornel::personnel {

namespace {

using namespace tabeleKartoteki;

QStringView przedrostek(Rodzaj rodzaj) {
    switch (rodzaj) {
    case Data:
        return u"dt";
    case Flaga:
        return u"chk";
    case Wybor:
        return u"cbo";
    default:
        return u"txt";
    }
}

QString nazwaKontrolki(Rodzaj rodzaj, Kolumna kolumna) {
    const std::string_view nazwa = kolumna.def().nazwa;
    QString wynik = QString::fromLatin1(nazwa.data(), static_cast<qsizetype>(nazwa.size()));
    wynik.front() = wynik.front().toUpper();
    return przedrostek(rodzaj).toString() + wynik;
}

Pole pole(const PoleTabeli& p) {
    Pole wynik{nazwaKontrolki(p.rodzaj, p.kolumna), p.podpis.toString(), p.kolumna, p.rodzaj, p.dostep};
    wynik.opis = p.opis.toString();
    const bool tekstowa = p.kolumna.def().typ == Typ::Text;
    for (const QStringView wybor : p.wybory) {
        const Wartosc wartosc =
            tekstowa ? Wartosc(wybor.toString()) : Wartosc(static_cast<qint64>(wynik.pozycje.size()));
        wynik.pozycje.append({wartosc, wybor.toString()});
    }
    return wynik;
}

GrupaKartoteki grupa(QStringView tytul, std::span<const PoleTabeli> pola, int kolumn = 1) {
    GrupaKartoteki wynik{tytul.toString(), {}, kolumn};
    for (const PoleTabeli& p : pola) wynik.pola.append(pole(p));
    return wynik;
}

QString element(QStringView tablica, int n) { return QStringLiteral("%1(%2)").arg(tablica).arg(n); }

/// A check box for each bit of the mask.
GrupaKartoteki bity(QStringView tytul, QChar litera, int ile, Kolumna maska) {
    GrupaKartoteki wynik{tytul.toString(), {}, 4};
    for (int n = 1; n <= ile; ++n) {
        const QString podpis = litera + QString::number(n);
        Pole p{element(QStringLiteral("chk") + litera, n), podpis, maska, Flaga};
        p.klucz = n;
        wynik.pola.append(p);
    }
    return wynik;
}

GrupaKartoteki kwoty(QStringView tytul, QStringView tablica, int ile, Kolumna (*kolumna)(int), int kolumn) {
    GrupaKartoteki wynik{tytul.toString(), {}, kolumn};
    for (int n = 1; n <= ile; ++n)
        // The caption is set from the catalogue; an empty one would join the field to the one before it.
        wynik.pola.append({element(tablica, n), QStringLiteral("%1:").arg(n), kolumna(n), Kwota});
    return wynik;
}

QList<ZakladkaKartoteki> zbuduj() {
    using namespace ekranKartoteki;
    return {
        {QStringLiteral("Ogólne"),
         {{grupa(u"DANE OSOBOWE", kOsobowe), grupa(u"STAN CYWILNY", kStan)},
          {grupa(u"ADRES ZAMELDOWANIA", kZameldowanie), grupa(u"DOKUMENTY", kDokumenty)}}},
        {QStringLiteral("Adresy"),
         {{grupa(kAdresZamieszkania, kZamieszkanie), grupa(u"POCZTA ELEKTRONICZNA", kPoczta)},
          {grupa(kAdresKorespondencji, kKorespondencja)}}},
        {QStringLiteral("Dane pracownicze"),
         {{grupa(u"ZATRUDNIENIE", kZatrudnienie)},
          {grupa(u"WYNAGRODZENIE", kWynagrodzenie), grupa(u"KWALIFIKACJE", kKwalifikacje)}}},
        {QStringLiteral("Urząd Skarbowy"),
         {{grupa(u"URZĄD SKARBOWY", kUrzad), grupa(u"PODATEK", kPodatek), grupa(u"KONTO BANKOWE", kKonto)}}},
        {QStringLiteral("Aktywne składniki"),
         {{grupa(u"BILANS OTWARCIA ROKU", kBilans, 3),
           bity(u"SKŁADNIKI DODATNIE", QLatin1Char('D'), kDodatnich, PRACSK("dod")),
           bity(u"SKŁADNIKI UJEMNE", QLatin1Char('P'), kUjemnych, PRACSK("pot"))}}},
        {QStringLiteral("Składniki"),
         {{kwoty(u"SKŁADNIKI DODATNIE", u"txt_6_di", kDodatnich, schemat::DodatniPracownika, 2)},
          {kwoty(u"SKŁADNIKI UJEMNE", u"txt_6_pi", kUjemnych, schemat::UjemnyPracownika, 1)}}},
        {QStringLiteral("Inne"),
         {{grupa(u"DANE UZUPEŁNIAJĄCE ADRES", kAdresDodatki), grupa(u"MIEJSCE PRACY", kMiejscePracy)},
          {grupa(u"URLOP (DNI)", kUrlop), grupa(u"ZASIŁKI (ILOŚĆ)", kZasilki),
           grupa(u"KASA ZAPOMOGOWO-POŻYCZKOWA", kPozyczka), grupa(u"WSKAŹNIKI", kWskazniki)}}},
        {QStringLiteral("Umowy zlecenia"),
         {{grupa(u"UMOWA ZLECENIE", kZlecenie), grupa(u"SKŁADKI ZLECENIOBIORCY (%)", kSkladkiOsoby),
           grupa(u"SKŁADKI ZLECENIODAWCY (%)", kSkladkiFirmy)},
          {grupa(u"UMOWA O DZIEŁO", kDzielo), grupa(u"HONORARIA", kHonoraria)}}},
        {QStringLiteral("ZUS (1)"),
         {{grupa(u"TYTUŁ UBEZPIECZENIA", kTytul), grupa(u"NIEZDOLNOŚĆ DO PRACY", kNiezdolnosc),
           grupa(u"KASA CHORYCH", kKasa)},
          {grupa(u"POCZĄTEK UBEZPIECZENIA", kPoczatek), grupa(u"Podlega ubezpieczeniu:", kPodlega),
           grupa(u"RODZINA", kRodzina)}}},
        {QStringLiteral("ZUS (2)"),
         {{grupa(u"DOKUMENTY", kDokumentyZus), grupa(u"STAWKI PRACOWNIKA (%)", kStawki),
           grupa(u"PRACOWNICZY PROGRAM EMERYTALNY", kPPE)}}},
        {QStringLiteral("ZUS (3)"),
         {{grupa(u"DOKUMENT", kDokumentZwua), grupa(u"USTANIE UBEZPIECZENIA: DATA I KOD", kUstanie)},
          {grupa(u"KONTYNUOWANIE UBEZPIECZEŃ", kKontynuacja)}}},
    };
}

} // namespace

namespace ekranKartoteki {

const QList<ZakladkaKartoteki>& zakladki() {
    static const QList<ZakladkaKartoteki> wszystkie = zbuduj();
    return wszystkie;
}

Pole notatka() {
    Pole wynik{QStringLiteral("txtInfo"), QString(), schemat::PRACINF("inf_opis"), Notatka};
    wynik.opis = QStringLiteral("Informacje opisowe");
    return wynik;
}

QString poleD(int n) { return element(u"chkD", n); }
QString poleP(int n) { return element(u"chkP", n); }
QString kwotaDodatnia(int n) { return element(u"txt_6_di", n); }
QString kwotaUjemna(int n) { return element(u"txt_6_pi", n); }

} // namespace ekranKartoteki

} // namespace tornel::personnel
