#include "rules/Konfiguracja.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "rules/UstawianieStalych.h"
#include "store/Sesja.h"
#include <QVersionNumber>

namespace tornel::rules {

namespace {

constexpr Kolumna kNum = schemat::KON("Num");
constexpr Kolumna kWart = schemat::KON("Wart");

QString przyciety(const QString& tekst) { return tekst.trimmed().left(kDlugoscStalej); }

int liczbaKrotka(const QString& tekst) {
    return static_cast<int>(LiczbaAlboZero(tekst, kNajmniejszaKrotka, kNajwiekszaKrotka));
}

// A boolean written as a number counts as well: anything but 0 is true.
bool logicznaZTekstu(const QString& tekst) {
    const QString t = tekst.trimmed();
    return t.compare(u"True", Qt::CaseInsensitive) == 0 || !KwotaAlboZero(t, Zapis::Dane).zero();
}

// "<major>.<minor> (<revision>)"
QString znacznikWersji() {
    const auto wersja = QVersionNumber::fromString(QStringLiteral(TORNEL_WERSJA));
    return QStringLiteral("%1.%2 (%3)")
        .arg(wersja.majorVersion())
        .arg(wersja.minorVersion())
        .arg(wersja.microVersion());
}

Recordset& otwarteStale(Sesja& sesja) {
    if (!sesja.rsKON.otwarty()) sesja.rsKON.Open(sesja.cnPlace);
    return sesja.rsKON;
}

void dopisz(Recordset& rs, int num, const QString& tekst) {
    rs.AddNew();
    rs.ustaw(kNum, num);
    rs.ustaw(kWart, przyciety(tekst));
}

QString tekstDomyslny(const StalaDef& stala, const QString& folderProgramu) {
    return stala.sprawdzenie == SprawdzenieStalej::Katalog ? folderProgramu : stala.domyslna.toString();
}

void czytaj(Recordset& rs, const StalaDef& stala, const QString& folderProgramu, Stale& stale) {
    if (!rs.Znajdz(stala.num)) dopisz(rs, stala.num, tekstDomyslny(stala, folderProgramu));
    WartoscZTekstu(stala, rs.tekst(kWart), stale);
}

void zapisz(Recordset& rs, const StalaDef& stala, const Stale& stale) {
    const QString tekst = TekstWartosci(stala, stale);
    if (!rs.Znajdz(stala.num))
        dopisz(rs, stala.num, tekst);
    else if (rs.jestNull(kWart) || rs.tekst(kWart) != tekst)
        rs.ustaw(kWart, tekst);
}

// After a failed write nothing may stay pending that a later write would carry along.
void utrwal(Recordset& rs) {
    if (!rs.zmieniony()) return;
    try {
        rs.UpdateBatch(u"Stałe programu");
    } catch (...) {
        rs.CancelBatch();
        throw;
    }
}

template <typename T, typename F>
void rozbij(const QString& tekst, std::span<T> tablica, F zTekstu) {
    if (tekst.isEmpty()) return;
    const QStringList kawalki = tekst.split(u',');
    const auto ile = std::min(tablica.size(), static_cast<std::size_t>(kawalki.size()));
    for (std::size_t i = 0; i < ile; ++i) tablica[i] = zTekstu(kawalki[static_cast<qsizetype>(i)]);
}

} // namespace

QString ZlaczTablice(std::span<const int> tablica) {
    QString tekst;
    for (const int liczba : tablica) tekst += QString::number(liczba) + u',';
    return tekst;
}

QString ZlaczTablice(std::span<const QString> tablica) {
    QString tekst;
    for (const QString& element : tablica) tekst += element.trimmed() + u',';
    return tekst;
}

void RozbijTablice(const QString& tekst, std::span<int> tablica) { rozbij(tekst, tablica, liczbaKrotka); }

void RozbijTablice(const QString& tekst, std::span<QString> tablica) {
    rozbij(tekst, tablica, [](const QString& kawalek) { return kawalek; });
}

QString TekstWartosci(const StalaDef& stala, const Stale& stale) {
    const Warianty naTekst{
        [](int liczba) { return QString::number(liczba); },
        [](bool wlaczona) { return wlaczona ? QStringLiteral("True") : QStringLiteral("False"); },
        [](Waluta kwota) { return FormatKwoty(kwota); },
        [](QDate data) { return FormatDaty(data); },
        [](const QString& tekst) { return tekst; },
        []<typename T, std::size_t N>(const std::array<T, N>& tablica) {
            return ZlaczTablice(std::span<const T>(tablica));
        },
    };
    return przyciety(zPolemStalej(stala, stale, naTekst));
}

void WartoscZTekstu(const StalaDef& stala, const QString& tekst, Stale& stale) {
    const Warianty zTekstu{
        [&](int& liczba) { liczba = liczbaKrotka(tekst); },
        [&](bool& wlaczona) { wlaczona = logicznaZTekstu(tekst); },
        [&](Waluta& kwota) { kwota = KwotaAlboZero(tekst, Zapis::Dane); },
        [&](QDate& data) { data = CzytajDate(tekst.trimmed()).value_or(QDate()); },
        [&](QString& napis) { napis = tekst; },
        [&]<typename T, std::size_t N>(std::array<T, N>& tablica) {
            RozbijTablice(tekst, std::span<T>(tablica));
        },
    };
    zPolemStalej(stala, stale, zTekstu);
}

void WczytajKonfiguracje(Sesja& sesja, Stale& stale, const QString& folderProgramu) {
    Recordset& rs = otwarteStale(sesja);
    if (rs.RecordCount() == 0) dopisz(rs, 0, znacznikWersji());
    Stale wczytane = stale;
    for (const StalaDef& stala : tabelaStalych()) czytaj(rs, stala, folderProgramu, wczytane);
    utrwal(rs);
    stale = wczytane;
}

void ZapiszKonfiguracje(Sesja& sesja, const Stale& stale) {
    Recordset& rs = otwarteStale(sesja);
    for (const StalaDef& stala : tabelaStalych()) zapisz(rs, stala, stale);
    utrwal(rs);
}

void ZapiszStala(Sesja& sesja, const Stale& stale, int num) {
    const StalaDef& stala = wymaganaStala(num);
    Recordset& rs = otwarteStale(sesja);
    zapisz(rs, stala, stale);
    utrwal(rs);
}

QString TekstStalej(Sesja& sesja, int num) {
    Recordset& rs = otwarteStale(sesja);
    return rs.Znajdz(num) ? rs.tekst(kWart) : QString();
}

QString PodajStala(Sesja& sesja, const Stale& stale, int num) {
    Recordset& rs = otwarteStale(sesja);
    if (rs.Znajdz(num)) return rs.tekst(kWart);
    return TekstWartosci(wymaganaStala(num), stale);
}

void UstawStala(Sesja& sesja, Stale& stale, int num, const QString& tekst) {
    const StalaDef& stala = wymaganaStala(num);
    Stale nowe = stale;
    przyjmijTekst(stala, tekst, nowe);
    ZapiszStala(sesja, nowe, num);
    // In memory the value is from now on what the next start will read.
    WartoscZTekstu(stala, TekstWartosci(stala, nowe), nowe);
    stale = nowe;
}

} // namespace tornel::rules
