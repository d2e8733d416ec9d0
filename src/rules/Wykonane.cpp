#include "rules/Wykonane.h"
#include "store/Sesja.h"
#include "store/Zapytanie.h"
#include <algorithm>
#include <map>

namespace tornel::rules {

using schemat::WYKONANE;

namespace {

const QString kCzas = QStringLiteral("HH:mm:ss");

/// The number of the month's last row, 0 without any.
qint64 ostatniNumer(Polaczenie& baza, const QString& miesiac) {
    PrzygotowaneZapytanie numery(
        baza, Zapytanie(WYKONANE).kolumny(WYKONANE("NR")).gdzie(WYKONANE("ROKMIES") == Wartosc(miesiac)));
    qint64 ostatni = 0;
    for (auto w = numery.uruchom(); w.nastepny();) ostatni = std::max(ostatni, w.liczba(WYKONANE("NR")));
    return ostatni;
}

Wykonanie zWiersza(const WierszeZapytania& w) {
    Wykonanie x;
    x.rodzaj = w.tekst(WYKONANE("RODZAJ"));
    x.miesiac = RokMies::zId(w.tekst(WYKONANE("ROKMIES")).toLongLong());
    x.zrodlo = w.tekst(WYKONANE("ZRODLO"));
    x.lista = w.tekst(WYKONANE("LISTA"));
    x.komu = w.liczba(WYKONANE("KOMU"));
    x.dokument = w.liczba(WYKONANE("DOKUMENT"));
    x.kwota = w.kwota(WYKONANE("KWOTA"));
    x.plik = w.tekst(WYKONANE("PLIK"));
    x.opis = w.tekst(WYKONANE("OPIS"));
    x.kiedy = {w.data(WYKONANE("DZIEN")), QTime::fromString(w.tekst(WYKONANE("CZAS")), kCzas)};
    x.kto = w.tekst(WYKONANE("KTO"));
    return x;
}

/// The criteria that are given, each with its column.
Warunek warunek(const SzukaneWykonania& s) {
    Warunek wynik;
    const auto rowne = [&](const auto& szukane, Kolumna k) {
        if (szukane) wynik.append({k, Kryterium::Operator::Rowne, *szukane});
    };
    if (s.miesiac) rowne(std::optional(s.miesiac->klucz()), WYKONANE("ROKMIES"));
    rowne(s.rodzaj, WYKONANE("RODZAJ"));
    rowne(s.zrodlo, WYKONANE("ZRODLO"));
    rowne(s.lista, WYKONANE("LISTA"));
    rowne(s.komu, WYKONANE("KOMU"));
    rowne(s.dokument, WYKONANE("DOKUMENT"));
    return wynik;
}

Zapytanie pytanie(const SzukaneWykonania& ktore) {
    Zapytanie z(WYKONANE);
    z.kolumny(WYKONANE("ROKMIES"), WYKONANE("NR"), WYKONANE("RODZAJ"), WYKONANE("ZRODLO"), WYKONANE("LISTA"),
              WYKONANE("KOMU"), WYKONANE("DOKUMENT"), WYKONANE("KWOTA"), WYKONANE("DZIEN"), WYKONANE("CZAS"),
              WYKONANE("KTO"), WYKONANE("PLIK"), WYKONANE("OPIS"))
        .wedlug(WYKONANE("ROKMIES"), WYKONANE("NR"));
    for (const Kryterium& k : warunek(ktore)) z.gdzie(k.kolumna == k.wartosc);
    return z;
}

} // namespace

void Wykonane::dopisz(const QList<Wykonanie>& wykonania, const QDateTime& kiedy) {
    Recordset rs(WYKONANE);
    rs.Open(sesja_.cnPlace, {}, {{WYKONANE("NR"), Kryterium::Operator::Mniejsze, qint64{0}}});
    std::map<QString, qint64> ostatnie;
    for (const Wykonanie& x : wykonania) {
        const QString miesiac = (x.miesiac.mies > 0 ? x.miesiac : RokMies::dnia(kiedy.date())).klucz();
        auto znany = ostatnie.find(miesiac);
        if (znany == ostatnie.end())
            znany = ostatnie.emplace(miesiac, ostatniNumer(sesja_.cnPlace, miesiac)).first;
        rs.AddNewZero();
        rs.ustaw(WYKONANE("ROKMIES"), miesiac);
        rs.ustaw(WYKONANE("NR"), ++znany->second);
        rs.ustaw(WYKONANE("RODZAJ"), x.rodzaj);
        rs.ustaw(WYKONANE("ZRODLO"), x.zrodlo);
        rs.ustaw(WYKONANE("LISTA"), x.lista);
        rs.ustaw(WYKONANE("KOMU"), x.komu);
        rs.ustaw(WYKONANE("DOKUMENT"), x.dokument);
        rs.ustaw(WYKONANE("KWOTA"), x.kwota);
        rs.ustaw(WYKONANE("DZIEN"), kiedy.date());
        rs.ustaw(WYKONANE("CZAS"), kiedy.time().toString(kCzas));
        rs.ustaw(WYKONANE("KTO"), sesja_.uzytkownik.nazwa);
        rs.ustaw(WYKONANE("PLIK"), x.plik);
        rs.ustaw(WYKONANE("OPIS"), x.opis);
    }
    const Wykonanie* jedno = wykonania.size() == 1 ? &wykonania.first() : nullptr;
    rs.UpdateBatch(!jedno || jedno->opis.isEmpty() ? QStringLiteral("Zapis wydruków i plików")
                   : jedno->plik.isEmpty()         ? QStringLiteral("Wydruk: ") + jedno->opis
                                                   : jedno->opis);
}

void Wykonane::usun(const SzukaneWykonania& ktore) {
    Recordset rs(WYKONANE);
    rs.Open(sesja_.cnPlace, {}, warunek(ktore));
    rs.MoveFirst();
    while (!rs.EOF_()) rs.Delete();
    rs.UpdateBatch(u"Zapis wydruków i plików");
}

QList<Wykonanie> Wykonane::szukaj(const SzukaneWykonania& ktore) const {
    PrzygotowaneZapytanie zapytanie(sesja_.cnPlace, pytanie(ktore));
    QList<Wykonanie> wynik;
    for (auto w = zapytanie.uruchom(); w.nastepny();) wynik.append(zWiersza(w));
    return wynik;
}

QString Wykonane::napis(const RodzajWykonania& rodzaj, SzukaneWykonania ktore) const {
    ktore.rodzaj = rodzaj.kod.toString();
    return NapisWykonania(rodzaj, szukaj(ktore));
}

QString NapisWykonania(const RodzajWykonania& rodzaj, const QList<Wykonanie>& wykonania) {
    const auto ostatnie = std::ranges::max_element(wykonania, {}, &Wykonanie::kiedy);
    if (ostatnie == wykonania.end()) return {};
    return rodzaj.slowo.toString() + QLatin1Char(' ') + FormatDaty(ostatnie->kiedy.date());
}

} // namespace tornel::rules
