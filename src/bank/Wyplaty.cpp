#include "bank/Wyplaty.h"
#include "common/Blad.h"
#include "store/Sesja.h"
#include <algorithm>
#include <vector>

namespace tornel::bank {

using schemat::HON;
using schemat::PLA;
using schemat::PLB;
using schemat::UOD;
using schemat::UZL;

namespace {

constexpr RodzajWyplat kRodzaje[] = {
    {&UZL, UZL("UZLID"), UZL("uzl_nr"), UZL("prc_id"), UZL("us_id"), UZL("data_zaw"), UZL("data_wyp"),
     UZL("przelewem"), UZL("Podatek"), u"Przelew z umowy - zlecenia", u"Przelew z umowy - zlecenia",
     u"Brak umów - zleceń spełniających podane kryteria. Sprawdź czy podany okres jest prawidłowy oraz czy "
     u"ustalono "
     u"kwoty do przelewów.",
     u"Brak umów - zleceń w podanum okresie, posiadających wyliczony podatek.", UZL("wys_mcs")},
    {&UOD, UOD("UODID"), UOD("uod_nr"), UOD("prc_id"), UOD("us_id"), UOD("data_zaw"), UOD("data_wyp"),
     UOD("przelewem"), UOD("Podatek"), u"Przelew z umowy o dzieło", u"Przelew z umowy o dzieło",
     u"Brak umów o dzieło spełniających podane kryteria. Sprawdź czy podany okres jest prawidłowy oraz czy "
     u"ustalono "
     u"kwoty do przelewów.",
     u"Brak umów o dzieło w podanum okresie, posiadających wyliczony podatek"},
    {&HON, HON("honid"), HON("hon_nr"), HON("prc_id"), HON("us_id"), HON("data_zaw"), HON("data_wyp"),
     HON("przelewem"), HON("Podatek"), u"Przelew honorarium", u"Przelew z honorarium",
     u"Brak honorariów spełniających podane kryteria. Sprawdź czy podany okres jest prawidłowy oraz czy "
     u"ustalono "
     u"kwoty do przelewów.",
     u"Brak honorariów w podanum okresie, posiadających wyliczony podatek."},
};

/// Sums by whom they go to, in order of appearance.
class SumyWgOdbiorcy {
public:
    void dodaj(qint64 komu, Waluta kwota) {
        const auto znany = std::ranges::find(sumy_, komu, &Wyplata::komu);
        if (znany == sumy_.end())
            sumy_.append({komu, kwota});
        else
            znany->kwota += kwota;
    }
    [[nodiscard]] QList<Wyplata> dodatnie() {
        sumy_.removeIf([](const Wyplata& w) { return !(w.kwota > Waluta{}); });
        return std::move(sumy_);
    }

private:
    QList<Wyplata> sumy_;
};

/// The rows of the list in work.
std::vector<Wiersz> wierszeListy(const Recordset& pla, const QString& symbol) {
    std::vector<Wiersz> wynik;
    for (const Wiersz a : pla.wiersze())
        if (symbol.trimmed().isEmpty() || a.tekst(PLA("LISTA")) == symbol) wynik.push_back(a);
    return wynik;
}

/// The contracts whose date `kolumna` lies in the period and which are paid by transfer, in their order.
Recordset umowyOkresu(Sesja& sesja, const RodzajWyplat& r, const Kolumna& kolumna, QDate od, QDate dokad) {
    using Op = Kryterium::Operator;
    Recordset rs(*r.tabela);
    rs.Open(sesja.cnPlace, {},
            {{kolumna, Op::NieMniejsze, od},
             {kolumna, Op::NieWieksze, dokad},
             {r.przelewem, Op::Wieksze, Waluta{}}});
    rs.Sort({r.zawarta, r.numer, r.id});
    rs.MoveFirst();
    return rs;
}

/// Of the contract that the handle stands on.
Wyplata wyplataUmowy(const RodzajWyplat& r, const Recordset& rs) {
    return {rs.liczba(r.prcId),
            rs.kwota(r.przelewem),
            {},
            rs.liczba(r.id),
            r.wyslana.tabela != nullptr && rs.flaga(r.wyslana)};
}

} // namespace

const RodzajWyplat* rodzajWyplat(const QString& tabela) {
    const std::string nazwa = tabela.toStdString();
    const auto r =
        std::ranges::find_if(kRodzaje, [&](const auto& x) { return teSameNazwy(x.tabela->nazwa, nazwa); });
    return r == std::end(kRodzaje) ? nullptr : r;
}

QString tytulPodatku() { return QStringLiteral("Przelew dla podatku"); }

QList<Wyplata> Wyplaty::zListy(const QString& symbol, const QList<qint64>& numery) const {
    QList<Wyplata> wynik;
    for (const Wiersz& a : wierszeListy(o_.sesja.rsPLA, symbol)) {
        Wyplata w{a.liczba(PLA("PRC_ID")), a.kwota(PLA("PRZELEWEM")), a.tekst(PLA("LISTA"))};
        if (!(w.kwota > Waluta{}) || (!numery.isEmpty() && !numery.contains(w.komu))) continue;
        const auto b = o_.sesja.rsPLB.szukaj(w.komu, w.lista);
        w.wyslana = b && b->flaga(PLB("WYS_MCS"));
        wynik.append(w);
    }
    return wynik;
}

QList<Wyplata> Wyplaty::podatekListy(const QString& symbol) const {
    SumyWgOdbiorcy sumy;
    for (const Wiersz& a : wierszeListy(o_.sesja.rsPLA, symbol))
        sumy.dodaj(a.liczba(PLA("US_ID")), a.kwota(PLA("PODATEK")));
    QList<Wyplata> wynik = sumy.dodatnie();
    for (Wyplata& w : wynik) w.lista = symbol.trimmed();
    return wynik;
}

std::optional<Wyplata> Wyplaty::zUmowy(const RodzajWyplat& rodzaj, qint64 id) const {
    Recordset rs(*rodzaj.tabela);
    rs.Open(o_.sesja.cnPlace, {}, {{rodzaj.id, Kryterium::Operator::Rowne, id}});
    if (!rs.naWierszu()) throw Blad(QStringLiteral("Nie ma umowy o numerze %1.").arg(id));
    const Wyplata w = wyplataUmowy(rodzaj, rs);
    return w.kwota > Waluta{} ? std::optional(w) : std::nullopt;
}

QList<Wyplata> Wyplaty::zUmow(const RodzajWyplat& rodzaj, QDate od, QDate dokad) const {
    QList<Wyplata> wynik;
    for (Recordset rs = umowyOkresu(o_.sesja, rodzaj, rodzaj.zawarta, od, dokad); !rs.EOF_(); rs.MoveNext())
        wynik.append(wyplataUmowy(rodzaj, rs));
    return wynik;
}

std::optional<QList<Wyplata>> Wyplaty::podatekUmow(const RodzajWyplat& rodzaj, QDate od, QDate dokad) const {
    SumyWgOdbiorcy sumy;
    Recordset rs = umowyOkresu(o_.sesja, rodzaj, rodzaj.wyplacona, od, dokad);
    if (rs.RecordCount() == 0) return std::nullopt;
    for (; !rs.EOF_(); rs.MoveNext()) sumy.dodaj(rs.liczba(rodzaj.usId), rs.kwota(rodzaj.podatek));
    return sumy.dodatnie();
}

} // namespace tornel::bank
