#include "rules/frmStalePola.h"
#include "common/Liczby.h"
#include "rules/Konfiguracja.h"
#include "rules/UstawianieStalych.h"
#include "store/Sesja.h"
#include <algorithm>

namespace tornel::rules {

namespace ekranStalych {

namespace {

/// Room for every number that somebody may try; what is out of range the check replaces.
constexpr int kCyfry = 6;
constexpr int kZnakiNominalu = 10;
/// A field's key is the number of its constant times this, plus the element.
constexpr int kKrokKlucza = 100;
constexpr int kSposobStZasL4 = 106;

Rodzaj rodzaj(const StalaDef& stala) {
    using enum SprawdzenieStalej;
    switch (stala.sprawdzenie) {
    case Kwota:
        return Rodzaj::Kwota;
    case Calkowita:
        return Rodzaj::Liczba;
    case Data:
        return Rodzaj::Data;
    case Przelacznik:
        return Rodzaj::Flaga;
    case Wybor:
    case Urzad:
        return Rodzaj::Wybor;
    default:
        return Rodzaj::Tekst;
    }
}

int rozmiar(const StalaDef& stala) {
    using enum SprawdzenieStalej;
    switch (stala.sprawdzenie) {
    case Zaokraglenie:
    case Numer:
    case NumerJedyny:
        return kCyfry;
    case Nominal:
        return kZnakiNominalu;
    case Znak:
        return 1;
    default:
        return kDlugoscStalej;
    }
}

QString przedrostek(const StalaDef& stala) {
    if (stala.sprawdzenie == SprawdzenieStalej::Przelacznik) return QStringLiteral("chk");
    if (stala.sprawdzenie == SprawdzenieStalej::Wybor) return QStringLiteral("cbo");
    return QStringLiteral("txt");
}

QString podpisElementu(const StalaDef& stala, std::size_t element) {
    if (element < stala.opcje.size()) return stala.opcje[element].toString();
    return QStringLiteral("%1:").arg(element + 1);
}

/// Where a constant that no frame holds goes: to the ones before it, unless it or they need a frame alone.
bool dolaczaDoPoprzednich(const QList<Ramka>& ramki, const StalaDef& stala) {
    return !tablica(stala) && !ramki.isEmpty() && ramki.last().tytul.isEmpty();
}

} // namespace

QList<Ramka> ramki(KartaStalych karta) {
    QList<Ramka> wynik;
    for (const StalaDef& stala : tabelaStalych()) {
        if (stala.karta != karta || stala.num == kRowNGGr) continue;
        const QString tytul = stala.ramka.toString();
        const auto ta = tytul.isEmpty() ? wynik.end() : std::ranges::find(wynik, tytul, &Ramka::tytul);
        if (ta != wynik.end())
            ta->stale.append(&stala);
        else if (tytul.isEmpty() && dolaczaDoPoprzednich(wynik, stala))
            wynik.last().stale.append(&stala);
        else
            wynik.append({tytul.isEmpty() && tablica(stala) ? stala.napis.toString() : tytul, {&stala}});
    }
    return wynik;
}

std::size_t ileElementow(const StalaDef& stala) {
    static const Stale wzorzec;
    return zPolemStalej(stala, wzorzec,
                        Warianty{
                            []<typename T, std::size_t N>(const std::array<T, N>&) { return N; },
                            [](const auto&) { return std::size_t{1}; },
                        });
}

bool tablica(const StalaDef& stala) { return ileElementow(stala) > 1; }

QString nazwaPola(const StalaDef& stala, std::size_t element) {
    if (stala.sprawdzenie == SprawdzenieStalej::Urzad) return QStringLiteral("cboUS");
    const QString nazwa = przedrostek(stala) + stala.nazwa.toString();
    return tablica(stala) ? QStringLiteral("%1(%2)").arg(nazwa).arg(element) : nazwa;
}

QList<Pole> pola(const StalaDef& stala, Podpisy podpisy, const QString& tytulRamki) {
    QList<Pole> wynik;
    for (std::size_t i = 0; i < ileElementow(stala); ++i) {
        Pole pole{nazwaPola(stala, i), stala.napis.toString(), {}, rodzaj(stala)};
        if (tablica(stala) && podpisy == Podpisy::Kolejne) pole.podpis = podpisElementu(stala, i);
        // In one line the fields behind the first share its caption; a frame's title needs no repetition.
        if ((podpisy == Podpisy::Wspolny && i > 0) || pole.podpis == tytulRamki) pole.podpis.clear();
        if (stala.sprawdzenie == SprawdzenieStalej::Wybor)
            for (const QStringView opcja : stala.opcje)
                pole.pozycje.append({static_cast<qint64>(pole.pozycje.size()), opcja.toString()});
        pole.klucz = stala.num * kKrokKlucza + static_cast<int>(i);
        pole.rozmiar = rozmiar(stala);
        wynik.append(pole);
    }
    return wynik;
}

QList<Pozycja> urzedy(Sesja& sesja) {
    QList<Pozycja> wynik{{qint64{0}, QString()}};
    Recordset rs(schemat::US);
    rs.Open(sesja.cnPlace);
    rs.Sort({schemat::US("US_ID")});
    rs.MoveFirst();
    for (; !rs.EOF_(); rs.MoveNext()) {
        const qint64 numer = rs.liczba(schemat::US("US_ID"));
        wynik.append({numer, QString::number(numer) + QStringLiteral(". ") + rs.tekst(schemat::US("Nazwa"))});
    }
    return wynik;
}

QString podpowiedz(const StalaDef& stala) {
    QString numer = QStringLiteral("Stała nr %1").arg(stala.num);
    if (stala.num != kSposobStZasL4) return numer;
    // The captions of the second and third choice say one thing and the stored values mean another.
    return numer + QStringLiteral(". Przy wyborze kolejnych pozycji liczone jest naprawdę:\n"
                                  "pierwsza: StawkaZasadnicza / 30 * ( 30 - IleDniL4 )\n"
                                  "druga: ŚredniaBrutto / 30 * ( 30 - IleDniL4 )\n"
                                  "trzecia: StawkaZasadnicza / DniObowiązkuPracy * DniPrzepracowane\n"
                                  "czwarta: StawkaZasadnicza bez zmian, wzór nie jest obliczany");
}

} // namespace ekranStalych

using namespace ekranStalych;

namespace {

struct MiejsceStalej {
    const StalaDef& stala;
    std::size_t element;
};

MiejsceStalej miejsce(const Pole& pole) {
    return {wymaganaStala(pole.klucz / kKrokKlucza), static_cast<std::size_t>(pole.klucz % kKrokKlucza)};
}

/// The box of the overtime tab that the place shows in; none for another constant.
std::optional<std::size_t> okienko(const MiejsceStalej& m) {
    if (m.stala.num < kRowNGRob || m.stala.num > kRowNGNie) return {};
    return static_cast<std::size_t>(m.stala.num - kRowNGRob) * kRownanWRzedzie + m.element;
}

/// What a box holds, row by row: by days constants 254 to 256, by groups constant 257, which has nothing for
/// the last two.
template <typename S>
auto rownanie(S& stale, UkladNadgodzin uklad, std::size_t okienko) -> decltype(&stale.RowNGGr[0]) {
    const std::array rzedy{&stale.RowNGRob, &stale.RowNGSob, &stale.RowNGNie};
    if (uklad == UkladNadgodzin::WgDni)
        return &rzedy.at(okienko / kRownanWRzedzie)->at(okienko % kRownanWRzedzie);
    return okienko < stale.RowNGGr.size() ? &stale.RowNGGr.at(okienko) : nullptr;
}

Wartosc wartosc(int liczba) { return static_cast<qint64>(liczba); }
Wartosc wartosc(QDate data) { return data.isValid() ? Wartosc(data) : Wartosc(Null); }
Wartosc wartosc(Waluta kwota) { return kwota; }
Wartosc wartosc(const QString& tekst) { return tekst; }

int liczbaZ(const Wartosc& wartosc) {
    if (const auto* liczba = std::get_if<qint64>(&wartosc)) return static_cast<int>(*liczba);
    const auto* tekst = std::get_if<QString>(&wartosc);
    return static_cast<int>(tekst ? LiczbaAlboZero(*tekst, kNajmniejszaKrotka, kNajwiekszaKrotka) : 0);
}

QString tekstZ(const Wartosc& wartosc) {
    const auto* tekst = std::get_if<QString>(&wartosc);
    return tekst ? tekst->trimmed() : QString();
}

} // namespace

ZrodloStalych::ZrodloStalych(const Stale& stale) : stale_(stale), zapisane_(stale) { przyjmijUklad(); }

Wartosc ZrodloStalych::czytaj(const Pole& pole) const { return czytajZ(stale_, pole); }

bool ZrodloStalych::czekaNaZapis(const Pole& pole) const {
    return czytajZ(stale_, pole) != czytajZ(zapisane_, pole);
}

Wartosc ZrodloStalych::czytajZ(const Stale& stale, const Pole& pole) const {
    const MiejsceStalej m = miejsce(pole);
    if (const auto nr = okienko(m)) {
        const QString* tekst = rownanie(stale, uklad_, *nr);
        return wartosc(tekst ? *tekst : QString());
    }
    const Warianty naWartosc{
        [&](bool wlaczona) {
            if (pole.rodzaj == Rodzaj::Wybor) return wartosc(wlaczona ? 1 : 0);
            return wartosc(wlaczona ? QStringLiteral("T") : QStringLiteral("N"));
        },
        [&]<typename T, std::size_t N>(const std::array<T, N>& tablica) {
            return wartosc(tablica[m.element]);
        },
        [](const auto& jedna) { return wartosc(jedna); },
    };
    return zPolemStalej(m.stala, stale, naWartosc);
}

void ZrodloStalych::zapisz(const Pole& pole, const Wartosc& wartosc) {
    const MiejsceStalej m = miejsce(pole);
    if (const auto nr = okienko(m)) {
        if (QString* tekst = rownanie(stale_, uklad_, *nr)) *tekst = tekstZ(wartosc);
        return;
    }
    const Warianty zWartosci{
        [&](int& liczba) { liczba = liczbaZ(wartosc); },
        [&](bool& wlaczona) { wlaczona = tekstZ(wartosc) == QLatin1String("T") || liczbaZ(wartosc) == 1; },
        [&](Waluta& kwota) { kwota = std::get<Waluta>(wartosc); },
        [&](QDate& data) {
            const auto* podana = std::get_if<QDate>(&wartosc);
            data = podana ? *podana : QDate();
        },
        [&](QString& tekst) { tekst = tekstZ(wartosc); },
        [&]<std::size_t N>(Stale::Numery<N>& tablica) { tablica[m.element] = liczbaZ(wartosc); },
        [&]<std::size_t N>(Stale::Teksty<N>& tablica) { tablica[m.element] = tekstZ(wartosc); },
    };
    zPolemStalej(m.stala, stale_, zWartosci);
}

} // namespace tornel::rules
