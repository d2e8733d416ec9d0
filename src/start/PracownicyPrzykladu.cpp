#include "start/PracownicyPrzykladu.h"
#include "store/Sesja.h"
#include <array>
#include <QDate>

namespace tornel::start {

using schemat::PRACDP;
using schemat::PRACPR;

namespace {

/// Employees that others are made after: those who work the whole year.
constexpr std::array kWzory{1, 2, 3, 4, 5, 6, 7, 8, 11, 12};

// Surnames with one form for men and women.
constexpr std::array<QStringView, 32> kNazwiska{
    u"Baran",  u"Bąk",      u"Ćwik",    u"Duda",      u"Gołąb",  u"Janik",   u"Kaczmarek", u"Kania",
    u"Kozieł", u"Krawczyk", u"Król",    u"Kubiak",    u"Łuczak", u"Mazur",   u"Michalak",  u"Mróz",
    u"Nowak",  u"Olejnik",  u"Pawlak",  u"Pietrzak",  u"Sikora", u"Sobczak", u"Stępień",   u"Szewczyk",
    u"Śliwa",  u"Urban",    u"Walczak", u"Wieczorek", u"Wójcik", u"Wróbel",  u"Zając",     u"Żak"};
constexpr std::array<QStringView, 12> kImionaMeskie{u"Adam",  u"Bogdan", u"Dariusz",  u"Grzegorz",
                                                    u"Jacek", u"Leszek", u"Łukasz",   u"Michał",
                                                    u"Paweł", u"Robert", u"Sławomir", u"Wojciech"};
constexpr std::array<QStringView, 12> kImionaZenskie{u"Agata",   u"Beata",  u"Dorota",  u"Elżbieta",
                                                     u"Grażyna", u"Joanna", u"Lucyna",  u"Małgorzata",
                                                     u"Renata",  u"Sylwia", u"Urszula", u"Żaneta"};

/// The same numbers on every machine, which the standard distributions do not promise.
class Ciag {
public:
    /// A whole number from 0 to `ile` - 1.
    [[nodiscard]] int liczba(int ile) {
        stan_ = stan_ * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<int>((stan_ >> 33) % static_cast<std::uint64_t>(ile));
    }
    template <std::size_t N>
    [[nodiscard]] QString jedenZ(const std::array<QStringView, N>& teksty) {
        return teksty[static_cast<std::size_t>(liczba(static_cast<int>(N)))].toString();
    }

private:
    std::uint64_t stan_ = 2001;
};

/// Six digits of the birth date, three of a serial number, one odd for men, the check digit.
QString pesel(QDate urodzenie, int seryjny, bool kobieta) {
    QString wynik = urodzenie.toString(QStringLiteral("yyMMdd")) +
                    QStringLiteral("%1").arg(seryjny, 3, 10, QLatin1Char('0')) +
                    QString::number(seryjny % 5 * 2 + (kobieta ? 0 : 1));
    static constexpr std::array wagi{1, 3, 7, 9, 1, 3, 7, 9, 1, 3};
    int suma = 0;
    for (int i = 0; i < 10; ++i) suma += wynik[i].digitValue() * wagi[static_cast<std::size_t>(i)];
    return wynik + QString::number((10 - suma % 10) % 10);
}

/// The values of one employee's row.
using Wiersz = QList<Wartosc>;

Wiersz wierszPracownika(Recordset& rs, int prcId) {
    Wiersz wynik;
    if (!rs.Znajdz(prcId)) return wynik;
    for (int i = 0; i < static_cast<int>(rs.tabela().kolumny.size()); ++i)
        wynik.append(rs.wartosc(rs.tabela().nr(i)));
    return wynik;
}

void wlasneDane(Sesja& s, Ciag& ciag) {
    Recordset& dp = s.rsPRACDP;
    const bool kobieta = ciag.liczba(2) == 0;
    const QDate urodzenie = QDate(1941, 1, 1).addDays(ciag.liczba(38 * 365));
    dp.ustaw(PRACDP("plec"), kobieta ? QStringLiteral("K") : QStringLiteral("M"));
    dp.ustaw(PRACDP("Naz"), ciag.jedenZ(kNazwiska));
    dp.ustaw(PRACDP("Imie_1"), ciag.jedenZ(kobieta ? kImionaZenskie : kImionaMeskie));
    dp.ustaw(PRACDP("data_ur"), urodzenie);
    dp.ustaw(PRACDP("pesel"), pesel(urodzenie, ciag.liczba(1000), kobieta));
    dp.ustaw(PRACDP("dowod_nr"), QString::number(1'000'000 + ciag.liczba(9'000'000)));
    const QString dom = QString::number(1 + ciag.liczba(90));
    for (const Kolumna k : {PRACDP("nr_domu"), PRACDP("nr_domu_m")}) dp.ustaw(k, dom);
    for (const Kolumna k : {PRACDP("imie_2"), PRACDP("naz_rod"), PRACDP("Nip"), PRACDP("stan_cyw"),
                            PRACDP("telefon"), PRACDP("telefon_m")})
        dp.ustaw(k, QString());
    s.rsPRACPR.ustaw(PRACPR("placa_zas"), Waluta::zlotych(800 + 10 * ciag.liczba(280)));
}

} // namespace

void DodajPracownikowPrzykladu(Sesja& sesja, int od, int dokad) {
    const Grupa& tabele = sesja.kadry;
    std::array<std::array<Wiersz, schemat::TabelePracownika.size()>, kWzory.size()> wzory;
    for (std::size_t w = 0; w < kWzory.size(); ++w)
        for (std::size_t t = 0; t < tabele.ile(); ++t) wzory[w][t] = wierszPracownika(tabele[t], kWzory[w]);

    Ciag ciag;
    for (int prcId = od; prcId <= dokad; ++prcId) {
        const auto& wzor = wzory[static_cast<std::size_t>(prcId) % kWzory.size()];
        for (std::size_t t = 0; t < tabele.ile(); ++t) {
            tabele[t].AddNewZero(prcId);
            for (int i = 1; i < static_cast<int>(wzor[t].size()); ++i)
                tabele[t].ustaw(tabele[t].tabela().nr(i), wzor[t][i]);
        }
        wlasneDane(sesja, ciag);
    }
    Transakcja transakcja(sesja.cnPlace, u"Pracownicy firmy przykładowej");
    sesja.kadry.UpdateBatch(transakcja);
    transakcja.zatwierdz();
}

} // namespace tornel::start
