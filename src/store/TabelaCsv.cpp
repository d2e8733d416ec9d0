#include "store/TabelaCsv.h"
#include "common/Blad.h"
#include "common/Csv.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "store/Komorki.h"
#include "store/Recordset.h"
#include "store/Schemat.h"
#include <algorithm>
#include <cmath>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>

namespace tornel::store {

namespace {

/// Columns that name a row: those of the index and the required ones, since a few keys have three columns.
QList<Kolumna> kolumnyKlucza(const TabelaDef& tabela) {
    QList<Kolumna> wynik;
    if (tabela.klucz.empty()) return wynik;
    for (const std::string_view nazwa : tabela.klucz) wynik.append(tabela.nr(tabela.numer(nazwa)));
    for (int i = 0; i < static_cast<int>(tabela.kolumny.size()); ++i)
        if (tabela.nr(i).def().wymagana &&
            std::none_of(wynik.begin(), wynik.end(), [i](const Kolumna& k) { return k.nr == i; }))
            wynik.append(tabela.nr(i));
    return wynik;
}

QString tekstWartosci(const Wartosc& wartosc, Typ typ) {
    if (const auto* liczba = std::get_if<qint64>(&wartosc)) return QString::number(*liczba);
    if (const auto* kwota = std::get_if<Waluta>(&wartosc)) return TekstKwoty(*kwota);
    if (const auto* tekst = std::get_if<QString>(&wartosc)) return *tekst;
    if (const auto* data = std::get_if<QDate>(&wartosc)) return FormatDaty(*data);
    if (const auto* rzeczywista = std::get_if<double>(&wartosc))
        return QString::number(*rzeczywista, 'g', QLocale::FloatingPointShortest)
            .replace(QLatin1Char('.'), QLatin1Char(','));
    return jestTekstem(typ) || typ == Typ::Date ? QString() : QStringLiteral("0");
}

std::optional<Waluta> kwotaZTekstu(const QString& tekst) {
    // A dot may group thousands as well as mark decimals, so it is refused; so is a fifth decimal place.
    if (tekst.contains(QLatin1Char('.'))) return {};
    auto liczba = RozbierzLiczbe(tekst, Zapis::Dane);
    if (!liczba) return {};
    for (; liczba->wykladnik < -4 && liczba->cyfry.endsWith('0'); ++liczba->wykladnik) liczba->cyfry.chop(1);
    if (liczba->wykladnik < -4) return {};
    const std::optional<Waluta> kwota = CzytajKwote(tekst, Zapis::Dane);
    if (!kwota || kwota->surowa() < zakresTypu(Typ::Currency).first) return {};
    return kwota;
}

std::optional<double> rzeczywistaZTekstu(const QString& tekst) {
    const auto liczba = RozbierzLiczbe(tekst, Zapis::Wzor);
    if (!liczba) return {};
    const double wartosc = (liczba->cyfry + 'e' + QByteArray::number(liczba->wykladnik)).toDouble();
    if (!std::isfinite(wartosc)) return {};
    return liczba->ujemna ? -wartosc : wartosc;
}

template <typename T>
std::optional<Wartosc> jakoWartosc(const std::optional<T>& wartosc) {
    if (!wartosc) return {};
    return Wartosc(*wartosc);
}

/// The value of a field, nothing when the column cannot hold it as it stands.
std::optional<Wartosc> wartoscZTekstu(const KolumnaDef& kolumna, const QString& tekst) {
    if (jestTekstem(kolumna.typ)) {
        if (kolumna.rozmiar > 0 && tekst.size() > kolumna.rozmiar) return {};
        return tekst;
    }
    const QString t = tekst.trimmed();
    if (kolumna.typ == Typ::Date) return t.isEmpty() ? Wartosc(Null) : jakoWartosc(CzytajDate(t));
    const QString liczba = t.isEmpty() ? QStringLiteral("0") : t;
    if (kolumna.typ == Typ::Currency) return jakoWartosc(kwotaZTekstu(liczba));
    if (kolumna.typ == Typ::Double || kolumna.typ == Typ::Single)
        return jakoWartosc(rzeczywistaZTekstu(liczba));
    const auto [min, maks] = zakresTypu(kolumna.typ);
    return jakoWartosc(CzytajLiczbe(liczba, min, maks));
}

/// Why a field was refused.
QString wymaganie(const KolumnaDef& kolumna) {
    switch (kolumna.typ) {
    case Typ::Text:
    case Typ::Char:
        return QStringLiteral("tekst jest dłuższy niż kolumna (%1)").arg(kolumna.rozmiar);
    case Typ::Date:
        return QStringLiteral("to nie jest data dd-mm-rrrr");
    case Typ::Currency:
        return QStringLiteral("to nie jest kwota z przecinkiem i najwyżej czterema miejscami po nim");
    case Typ::Double:
    case Typ::Single:
        return QStringLiteral("to nie jest liczba z przecinkiem");
    default:
        break;
    }
    const auto [min, maks] = zakresTypu(kolumna.typ);
    return QStringLiteral("to nie jest liczba całkowita od %1 do %2").arg(min).arg(maks);
}

/// A row of the file, its values in the order of the header.
struct Rekord {
    QList<Wartosc> wartosci;
    QString klucz;
};

struct PlikCsv {
    QList<Kolumna> kolumny;
    QList<Rekord> rekordy;
};

constexpr QChar kRozdzielacz(u'\x1f'); // between the parts of a key's text

[[noreturn]] void odmow(int linia, const QString& powod) {
    throw Blad(QStringLiteral("Wiersz %1: %2.").arg(linia).arg(powod));
}

QList<Kolumna> czytajNaglowek(const TabelaDef& tabela, const WierszCsv& naglowek) {
    QList<Kolumna> wynik;
    for (const QString& pole : naglowek.pola) {
        const int nr = tabela.numer(pole.trimmed().toStdString());
        if (nr < 0) odmow(naglowek.linia, QStringLiteral("nie ma kolumny \"%1\" w tej tabeli").arg(pole));
        if (std::any_of(wynik.begin(), wynik.end(), [nr](const Kolumna& k) { return k.nr == nr; }))
            odmow(naglowek.linia, QStringLiteral("kolumna \"%1\" jest podana dwa razy").arg(pole));
        wynik.append(tabela.nr(nr));
    }
    for (const Kolumna& k : kolumnyKlucza(tabela))
        if (std::none_of(wynik.begin(), wynik.end(), [&k](const Kolumna& w) { return w.nr == k.nr; }))
            odmow(naglowek.linia, QStringLiteral("brakuje kolumny klucza \"%1\"").arg(napis(k.def().nazwa)));
    return wynik;
}

QList<Wartosc> czytajWartosci(const QList<Kolumna>& kolumny, const WierszCsv& wiersz) {
    if (wiersz.pola.size() != kolumny.size())
        odmow(wiersz.linia,
              QStringLiteral("pól jest %1, a kolumn %2").arg(wiersz.pola.size()).arg(kolumny.size()));
    QList<Wartosc> wynik;
    for (qsizetype i = 0; i < kolumny.size(); ++i) {
        const KolumnaDef& kolumna = kolumny[i].def();
        const QString& pole = wiersz.pola[i];
        const auto powod = [&](const QString& tekst) {
            return QStringLiteral("kolumna \"%1\", wartość \"%2\": %3")
                .arg(napis(kolumna.nazwa), pole, tekst);
        };
        if (kolumna.wymagana && pole.isEmpty()) odmow(wiersz.linia, powod(QStringLiteral("brakuje klucza")));
        const std::optional<Wartosc> wartosc = wartoscZTekstu(kolumna, pole);
        if (!wartosc) odmow(wiersz.linia, powod(wymaganie(kolumna)));
        wynik.append(*wartosc);
    }
    return wynik;
}

QString kluczRekordu(const QList<Kolumna>& kluczowe, const QList<Kolumna>& kolumny,
                     const QList<Wartosc>& wartosci) {
    QString wynik;
    for (const Kolumna& k : kluczowe)
        for (qsizetype i = 0; i < kolumny.size(); ++i)
            if (kolumny[i].nr == k.nr) wynik += tekstWartosci(wartosci[i], k.def().typ) + kRozdzielacz;
    return wynik;
}

QString kluczWiersza(const QList<Kolumna>& kluczowe, const Recordset& rs) {
    QString wynik;
    for (const Kolumna& k : kluczowe) wynik += tekstWartosci(rs.wartosc(k), k.def().typ) + kRozdzielacz;
    return wynik;
}

PlikCsv czytajPlik(const TabelaDef& tabela, const QByteArray& csv) {
    const QList<WierszCsv> wiersze = CzytajCsv(csv);
    if (wiersze.isEmpty()) odmow(1, QStringLiteral("brakuje wiersza z nazwami kolumn"));
    PlikCsv plik;
    plik.kolumny = czytajNaglowek(tabela, wiersze.first());
    const QList<Kolumna> kluczowe = kolumnyKlucza(tabela);
    QHash<QString, int> linieKluczy;
    for (const WierszCsv& wiersz : wiersze.mid(1)) {
        Rekord rekord{czytajWartosci(plik.kolumny, wiersz), {}};
        rekord.klucz = kluczRekordu(kluczowe, plik.kolumny, rekord.wartosci);
        if (!kluczowe.isEmpty()) {
            if (const auto jest = linieKluczy.constFind(rekord.klucz); jest != linieKluczy.constEnd())
                odmow(wiersz.linia, QStringLiteral("ten sam klucz stoi już w wierszu %1").arg(*jest));
            linieKluczy.insert(rekord.klucz, wiersz.linia);
        }
        plik.rekordy.append(std::move(rekord));
    }
    return plik;
}

void wpisz(Recordset& rs, const QList<Kolumna>& kolumny, const QList<Wartosc>& wartosci) {
    for (qsizetype i = 0; i < kolumny.size(); ++i) rs.ustaw(kolumny[i], wartosci[i]);
}

/// The tables whose rows correspond to those of `tabela` one to one, itself included; nothing for others.
QList<TabelaPliku> tabeleWspolne(const TabelaPliku& tabela) {
    QList<TabelaPliku> wynik;
    for (const auto grupa : schemat::Grupy) {
        if (std::find(grupa.begin(), grupa.end(), tabela.def) == grupa.end()) continue;
        const QString miesiac = tabela.rok == 0 ? QString() : tabela.nazwa.right(6);
        for (const TabelaDef* def : grupa)
            wynik.append({def, napis(def->nazwa) + miesiac, tabela.rok, tabela.mies});
    }
    return wynik;
}

void dodajPartnerow(Polaczenie& polaczenie, const TabelaPliku& tabela, const PlikCsv& plik,
                    const QList<const Rekord*>& nowe, const DomyslneWiersza& domyslne,
                    const Transakcja& akcja) {
    if (nowe.isEmpty()) return;
    for (const TabelaPliku& wspolna : tabeleWspolne(tabela)) {
        if (wspolna.def == tabela.def) continue;
        Recordset rs(*wspolna.def);
        rs.Open(polaczenie, wspolna.nazwa);
        const QList<Kolumna> kluczowe = kolumnyKlucza(*wspolna.def);
        QSet<QString> klucze;
        for (; !rs.EOF_(); rs.MoveNext()) klucze.insert(kluczWiersza(kluczowe, rs));
        for (const Rekord* rekord : nowe) {
            if (klucze.contains(rekord->klucz)) continue;
            rs.AddNewZero();
            if (domyslne) domyslne(rs);
            for (const Kolumna& k : kluczowe)
                for (qsizetype i = 0; i < plik.kolumny.size(); ++i)
                    if (teSameNazwy(plik.kolumny[i].def().nazwa, k.def().nazwa))
                        rs.ustaw(k, rekord->wartosci[i]);
        }
        rs.UpdateBatch(akcja);
    }
}

} // namespace

TabelaPliku ZnajdzTabele(Polaczenie& polaczenie, const QString& nazwa) {
    const std::string szukana = nazwa.toStdString();
    for (const TabelaDef* def : schemat::Tabele)
        // The journal is read through its own screen and command, and nobody writes it by hand.
        if (def != &schemat::DZIENNIK && def != &schemat::DZIENNIK_ZMIANY && teSameNazwy(def->nazwa, szukana))
            return {def, napis(def->nazwa), 0, 0};

    static const QRegularExpression miesieczna(QStringLiteral("^([A-Z]+)([0-9]{4})(0[1-9]|1[0-2])$"));
    const QRegularExpressionMatch czesci = miesieczna.match(nazwa.toUpper());
    if (czesci.hasMatch() && polaczenie.jestTabela(nazwa)) {
        const std::string przedrostek = czesci.captured(1).toStdString();
        for (const std::span<const TabelaDef* const> grupa :
             {std::span<const TabelaDef* const>(schemat::TabeleMiesiaca),
              std::span<const TabelaDef* const>(schemat::TabeleNadgodzin)})
            for (const TabelaDef* def : grupa)
                if (def->nazwa == przedrostek)
                    return {def, nazwa.toUpper(), czesci.captured(2).toInt(), czesci.captured(3).toInt()};
    }
    throw Blad(QStringLiteral("Nie ma tabeli \"%1\".").arg(nazwa));
}

QByteArray EksportujTabele(Polaczenie& polaczenie, const TabelaPliku& tabela) {
    Recordset rs(*tabela.def);
    rs.Open(polaczenie, tabela.nazwa);
    rs.Sort(kolumnyKlucza(*tabela.def));
    const int ile = static_cast<int>(tabela.def->kolumny.size());
    QByteArray wynik;
    const auto dopisz = [&](int i, const QString& pole) {
        wynik += PoleCsv(pole).toUtf8() + (i + 1 < ile ? ';' : '\n');
    };
    for (int i = 0; i < ile; ++i) dopisz(i, napis(tabela.def->kolumny[static_cast<std::size_t>(i)].nazwa));
    for (rs.MoveFirst(); !rs.EOF_(); rs.MoveNext())
        for (int i = 0; i < ile; ++i) {
            const Kolumna k = tabela.def->nr(i);
            dopisz(i, tekstWartosci(rs.wartosc(k), k.def().typ));
        }
    return wynik;
}

WynikImportu ImportujTabele(Polaczenie& polaczenie, const TabelaPliku& tabela, const QByteArray& csv,
                            const DomyslneWiersza& domyslne) {
    const PlikCsv plik = czytajPlik(*tabela.def, csv);
    const QList<Kolumna> kluczowe = kolumnyKlucza(*tabela.def);
    QHash<QString, const Rekord*> poKluczu;
    if (!kluczowe.isEmpty())
        for (const Rekord& rekord : plik.rekordy) poKluczu.insert(rekord.klucz, &rekord);

    WynikImportu wynik;
    Transakcja transakcja(polaczenie, QStringLiteral("Import tabeli %1").arg(tabela.nazwa));
    Recordset rs(*tabela.def);
    rs.Open(polaczenie, tabela.nazwa);
    QSet<const Rekord*> obecne;
    for (; !kluczowe.isEmpty() && !rs.EOF_(); rs.MoveNext())
        if (const Rekord* rekord = poKluczu.value(kluczWiersza(kluczowe, rs))) {
            wpisz(rs, plik.kolumny, rekord->wartosci);
            obecne.insert(rekord);
            ++wynik.zmienione;
        }
    QList<const Rekord*> nowe;
    for (const Rekord& rekord : plik.rekordy) {
        if (obecne.contains(&rekord)) continue;
        rs.AddNewZero();
        wpisz(rs, plik.kolumny, rekord.wartosci);
        nowe.append(&rekord);
    }
    wynik.dodane = static_cast<int>(nowe.size());
    rs.UpdateBatch(transakcja);
    dodajPartnerow(polaczenie, tabela, plik, nowe, domyslne, transakcja);
    transakcja.zatwierdz();
    return wynik;
}

} // namespace tornel::store
