#include "store/Dziennik.h"
#include "common/Blad.h"
#include "store/Komorki.h"
#include "store/Schemat.h"
#include <algorithm>
#include <limits>

namespace tornel::store {

namespace {

constexpr const char* kKolumnyWpisu =
    "SELECT ID, STAN, DZIEN, CZAS, KTO, CZYNNOSC, TABELE, WIERSZY, OSOBY, DOTYCZY FROM DZIENNIK";

WpisDziennika wpisZWiersza(const Instrukcja& i) {
    WpisDziennika w;
    w.id = i.liczba(0);
    w.stan = static_cast<StanWpisu>(std::clamp<qint64>(i.liczba(1), 0, static_cast<int>(StanWpisu::Odcieta)));
    if (const auto dzien = dzienZTekstu(i.utf8(2))) w.dzien = QDate::fromJulianDay(*dzien);
    w.czas = i.tekst(3);
    w.kto = i.tekst(4);
    w.czynnosc = i.tekst(5);
    w.tabele = i.tekst(6).split(QStringLiteral(", "), Qt::SkipEmptyParts);
    w.wierszy = i.liczba(7);
    w.osoby = i.tekst(8);
    w.dotyczy = i.liczba(9);
    return w;
}

/// Whether one of the changed rows is the employee's.
bool dotyczyOsoby(Polaczenie& polaczenie, const WpisDziennika& wpis, qint64 osoba) {
    if (wpis.osoby != QLatin1String("*")) return wpis.osoby.contains(u',' + QString::number(osoba) + u',');
    PakietyWpisu pakiety(polaczenie, wpis.id, KolejnoscPakietow::Naprzod);
    while (const auto pakiet = pakiety.nastepny()) {
        const int kolumna = pakiet->szablon ? kolumnaPracownika(*pakiet->szablon) : -1;
        if (kolumna < 0) continue;
        const auto jego = [&](const ZmianaKolumny& k) {
            return k.nr == kolumna && (k.stara == WartoscPliku(osoba) || k.nowa == WartoscPliku(osoba));
        };
        for (const ZmianaWiersza& z : pakiet->zmiany)
            if (std::ranges::any_of(z.kolumny, jego) || std::ranges::any_of(z.klucz, jego)) return true;
    }
    return false;
}

bool zawieraTekst(Instrukcja& bajty, const WpisDziennika& wpis, const QString& tekst) {
    if (wpis.czynnosc.contains(tekst, Qt::CaseInsensitive)) return true;
    bajty.od_nowa();
    return bajty.wiaz(0, wpis.id).wiazBajty(1, tekst.toUtf8()).wiersz();
}

} // namespace

QList<WpisDziennika> WpisyDziennika(Polaczenie& polaczenie, const SzukaneWpisy& szukane) {
    std::string sql = kKolumnyWpisu;
    QList<Wartosc> wartosci;
    const auto warunek = [&](const char* tekst, const Wartosc& wartosc) {
        sql += (wartosci.isEmpty() ? " WHERE " : " AND ") + std::string(tekst);
        wartosci += wartosc;
    };
    if (szukane.od.isValid()) warunek("DZIEN>=?", szukane.od);
    if (szukane.do_.isValid()) warunek("DZIEN<=?", szukane.do_);
    if (!szukane.kto.isEmpty()) warunek("KTO=?", szukane.kto);
    Instrukcja i(polaczenie, sql + " ORDER BY rowid DESC");
    for (qsizetype nr = 0; nr < wartosci.size(); ++nr) wiazWartosc(i, static_cast<int>(nr), wartosci[nr]);
    Instrukcja bajty(polaczenie, "SELECT 1 FROM DZIENNIK_ZMIANY WHERE WPIS=? AND instr(DANE, ?)>0");
    QList<WpisDziennika> wynik;
    while (i.wiersz()) {
        WpisDziennika w = wpisZWiersza(i);
        const bool jestTabela =
            szukane.tabela.isEmpty() || std::ranges::any_of(w.tabele, [&](const QString& t) {
                const TabelaDef* szablon = schemat::szablonTabeli(t.toStdString());
                return t.compare(szukane.tabela, Qt::CaseInsensitive) == 0 ||
                       (szablon && teSameNazwy(szablon->nazwa, szukane.tabela.toStdString()));
            });
        if (!jestTabela || (szukane.osoba > 0 && !dotyczyOsoby(polaczenie, w, szukane.osoba)) ||
            (!szukane.tekst.isEmpty() && !zawieraTekst(bajty, w, szukane.tekst)))
            continue;
        wynik += std::move(w);
    }
    return wynik;
}

PakietyWpisu::PakietyWpisu(Polaczenie& polaczenie, qint64 id, KolejnoscPakietow kolejnosc)
    : instrukcja_(
          polaczenie,
          kolejnosc == KolejnoscPakietow::Naprzod
              ? "SELECT DANE, NR FROM DZIENNIK_ZMIANY WHERE WPIS=? AND NR>? ORDER BY NR LIMIT 1"
              : "SELECT DANE, NR FROM DZIENNIK_ZMIANY WHERE WPIS=? AND NR<? ORDER BY NR DESC LIMIT 1"),
      nr_(kolejnosc == KolejnoscPakietow::Naprzod ? 0 : std::numeric_limits<qint64>::max()) {
    instrukcja_.wiaz(0, id);
}

std::optional<PakietZmian> PakietyWpisu::nastepny() {
    std::optional<PakietZmian> wynik;
    if (instrukcja_.wiaz(1, nr_).wiersz()) {
        const std::string_view dane = instrukcja_.utf8(0);
        nr_ = instrukcja_.liczba(1);
        wynik = CzytajPakiet(QByteArray::fromRawData(dane.data(), static_cast<qsizetype>(dane.size())));
    }
    instrukcja_.od_nowa();
    return wynik;
}

QList<PakietZmian> ZmianyWpisu(Polaczenie& polaczenie, qint64 id, qint64 najwiecej) {
    QList<PakietZmian> wynik;
    PakietyWpisu pakiety(polaczenie, id, KolejnoscPakietow::Naprzod);
    while (najwiecej > 0) {
        auto pakiet = pakiety.nastepny();
        if (!pakiet) break;
        if (const auto ile = static_cast<std::size_t>(najwiecej); pakiet->zmiany.size() > ile)
            pakiet->zmiany.resize(ile);
        najwiecej -= static_cast<qint64>(pakiet->zmiany.size());
        wynik += std::move(*pakiet);
    }
    return wynik;
}

qint64 PrzytnijDziennik(Polaczenie& polaczenie, QDate przed) {
    Transakcja akcja(polaczenie, u"Przycięcie dziennika zmian");
    Instrukcja zmiany(polaczenie, "DELETE FROM DZIENNIK_ZMIANY WHERE WPIS IN (SELECT ID FROM DZIENNIK WHERE "
                                  "DZIEN<?)");
    wiazWartosc(zmiany, 0, przed);
    zmiany.wykonaj();
    Instrukcja wpisy(polaczenie, "DELETE FROM DZIENNIK WHERE DZIEN<?");
    wiazWartosc(wpisy, 0, przed);
    wpisy.wykonaj();
    const qint64 ile = sqlite3_changes64(polaczenie.uchwyt());
    if (ZapisDziennika* dziennik = polaczenie.dziennik())
        dziennik->dopiszZdarzenie(QStringLiteral("Przycięcie dziennika zmian: wpisy przed %1, usunięto %2")
                                      .arg(przed.toString(QStringLiteral("dd-MM-yyyy")))
                                      .arg(ile));
    akcja.zatwierdz();
    return ile;
}

void ZakonczLancuch(Polaczenie& polaczenie, const QString& powod, const QDateTime& kiedy) {
    if (!polaczenie.jestTabela(napis(schemat::DZIENNIK.nazwa))) return;
    Transakcja akcja(polaczenie, powod);
    Instrukcja zamknij(polaczenie, "UPDATE DZIENNIK SET STAN=? WHERE STAN=?");
    for (const auto& [z, na] : {std::pair(StanWpisu::Wykonana, StanWpisu::Zamknieta),
                                std::pair(StanWpisu::Cofnieta, StanWpisu::Odcieta)})
        zamknij.wiaz(0, static_cast<qint64>(na)).wiaz(1, static_cast<qint64>(z)).wykonaj();
    if (ZapisDziennika* dziennik = polaczenie.dziennik()) {
        dziennik->dopiszZdarzenie(powod);
    } else {
        ZapisDziennika zapis(polaczenie);
        zapis.UstawZegar([&] { return kiedy; });
        zapis.dopiszZdarzenie(powod);
    }
    akcja.zatwierdz();
}

} // namespace tornel::store
