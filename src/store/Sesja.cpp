#include "store/Sesja.h"
#include "common/Blad.h"
#include "store/Komorki.h"
#include <exception>

namespace tornel::store {

Sesja::Sesja(const QString& sciezka, const std::function<void(Polaczenie&)>& przedTabelami)
    : cnPlace(sciezka, Polaczenie::Sposob::Istniejaca), zmianaWersji_(DoprowadzDoWersji(cnPlace)) {
    if (przedTabelami) przedTabelami(cnPlace);
    otworzStale();
}

void Sesja::otworzStale() {
    kadry.Open(cnPlace);
    rsSZ_PL.Open(cnPlace);
    rsSZ_PL.Sort({schemat::SZ_PL("NR")});
}

QString Sesja::nazwaMiesiaca(std::string_view przedrostek, RokMies miesiac) {
    return napis(przedrostek) + miesiac.klucz();
}

void Sesja::OtworzNaglowki() { naglowki.Open(cnPlace); }

bool Sesja::ZnajdzMiesiac(RokMies miesiac) {
    if (!naglowki.otwarta()) OtworzNaglowki();
    return naglowki.Znajdz(FormatRoku(miesiac.rok), FormatMiesiaca(miesiac.mies));
}

void Sesja::OtworzMiesiac(int rok, int mies, int& wynik) {
    const RokMies miesiac{rok, mies};
    wynik = 1;
    if (!ZnajdzMiesiac(miesiac)) return;
    for (const TabelaDef* t : schemat::TabeleMiesiaca)
        if (!cnPlace.jestTabela(nazwaMiesiaca(t->nazwa, miesiac))) return;
    miesiac_ = {};
    wierszListy.Open(cnPlace, miesiac.klucz());
    for (const auto& [rs, rokMies] : {std::pair(&rsZASILEK, schemat::ZASILEK("ROKMIES")),
                                      std::pair(&rsWPISANE, schemat::WPISANE("ROKMIES"))})
        rs->Open(cnPlace, {}, {{rokMies, Kryterium::Operator::Rowne, miesiac.klucz()}});
    miesiac_ = miesiac;
    wynik = 0;
}

void Sesja::ZamknijMiesiac() {
    wierszListy.Close();
    rsZASILEK.Close();
    rsWPISANE.Close();
    miesiac_ = {};
}

bool Sesja::PrzesunWierszMiesiaca(int rok, int mies, bool przesun) {
    if (miesiac_ != RokMies{rok, mies}) {
        int wynik = 0;
        OtworzMiesiac(rok, mies, wynik);
        if (wynik != 0) return false;
    } else if (przesun) {
        rsPLA.MoveNext();
    }
    if (!rsPLA.naWierszu()) return false;
    UstawPartnerow();
    return true;
}

bool Sesja::UstawPartnerow() {
    const qint64 prc = rsPLA.liczba(schemat::PLA("PRC_ID"));
    const QString lista = rsPLA.tekst(schemat::PLA("LISTA"));
    bool wszystkie = true;
    for (Recordset* rs : wierszListy)
        if (rs != &rsPLA) wszystkie = rs->Znajdz(prc, lista) && wszystkie;
    return wszystkie;
}

bool Sesja::UstawPracownika(qint64 prcId) { return kadry.Znajdz(prcId); }

std::vector<Recordset*> Sesja::uchwyty() {
    return {&rsPRACDP,  &rsPRACSK,  &rsPRACINF, &rsPRACPR,  &rsPRACZUS,    &rsSZ_PL, &rsPLACE,
            &rsPLACEN,  &rsPLACEK,  &rsPLA,     &rsPLB,     &rsPLS,        &rsPLD,   &rsZASILEK,
            &rsWPISANE, &rsURL,     &rsZW,      &rsM_PRACY, &rsUS,         &rsNADG,  &rsZUS,
            &rsPIT4,    &rsPIT11,   &rsPIT40,   &rsPIT8B,   &rsUZL,        &rsUOD,   &rsHON,
            &rsKONTA,   &rsRODZINA, &rsUMOP,    &rsKON,     &rsUZYTKOWNICY};
}

void Sesja::OdswiezUchwyty() {
    for (Recordset* rs : uchwyty()) {
        if (!rs->otwarty()) continue;
        if (cnPlace.jestTabela(rs->nazwa()))
            rs->Requery();
        else
            rs->Close();
    }
    if (!wierszListy.otwarta()) ZamknijMiesiac();
}

void Sesja::PrzyZamknietychUchwytach(const std::function<void()>& czynnosc) {
    const RokMies miesiac = miesiac_;
    std::vector<Recordset*> otwarte;
    ZamknijMiesiac();
    for (Recordset* rs : uchwyty())
        if (rs->otwarty()) {
            otwarte.push_back(rs);
            rs->Close();
        }
    std::exception_ptr wyjatek;
    try {
        czynnosc();
    } catch (...) {
        wyjatek = std::current_exception();
    }
    for (Recordset* rs : otwarte) rs->Open(cnPlace);
    otworzStale();
    if (rsPLACE.otwarty()) OtworzNaglowki();
    if (int wynik = 0; miesiac.rok > 0) OtworzMiesiac(miesiac.rok, miesiac.mies, wynik);
    if (wyjatek) std::rethrow_exception(wyjatek);
}

OtwartyMiesiac::OtwartyMiesiac(Sesja& sesja, RokMies miesiac) : sesja_(sesja), poprzedni_(sesja.miesiac()) {
    int wynik = 0;
    sesja_.OtworzMiesiac(miesiac.rok, miesiac.mies, wynik);
    jest_ = wynik == 0;
}

OtwartyMiesiac::~OtwartyMiesiac() {
    if (sesja_.miesiac() == poprzedni_) return;
    sesja_.ZamknijMiesiac();
    if (poprzedni_ == RokMies{}) return;
    try {
        int wynik = 0;
        sesja_.OtworzMiesiac(poprzedni_.rok, poprzedni_.mies, wynik);
    } catch (const Blad&) {
        // A destructor may not fail. The handles stay closed, and whoever goes on with the month is told so.
        sesja_.ZamknijMiesiac();
    }
}

} // namespace tornel::store
