#include "store/Sesja.h"
#include "common/Blad.h"
#include "common/RokMies.h"

namespace tornel::store {

Sesja::Sesja(const QString& sciezka)
    : cnPlace(sciezka, Polaczenie::Sposob::Istniejaca), zmianaWersji_(DoprowadzDoWersji(cnPlace)) {
    for (Recordset* rs : {&rsPRACDP, &rsPRACSK, &rsPRACINF, &rsPRACPR, &rsPRACZUS, &rsSZ_PL}) {
        rs->Open(cnPlace);
        rs->Sort({rs->tabela().nr(rs->tabela().numer(rs->tabela().klucz[0]))});
    }
}

QString Sesja::nazwaMiesiaca(std::string_view przedrostek, int rok, int mies) {
    return QString::fromLatin1(przedrostek.data(), static_cast<qsizetype>(przedrostek.size())) +
           QString::number(rok).rightJustified(4, QLatin1Char('0')) +
           QString::number(mies).rightJustified(2, QLatin1Char('0'));
}

void Sesja::OtworzNaglowki() {
    for (Recordset* rs : {&rsPLACE, &rsPLACEN, &rsPLACEK}) {
        rs->Open(cnPlace);
        rs->Sort({rs->tabela().nr(0), rs->tabela().nr(1)});
    }
}

bool Sesja::ZnajdzMiesiac(int rok, int mies) {
    if (!rsPLACE.otwarty() || !rsPLACEN.otwarty() || !rsPLACEK.otwarty()) OtworzNaglowki();
    const QString m = QString::number(mies).rightJustified(2, QLatin1Char('0'));
    const QString r = QString::number(rok).rightJustified(4, QLatin1Char('0'));
    bool jest = true;
    for (Recordset* rs : {&rsPLACE, &rsPLACEN, &rsPLACEK}) jest = rs->Znajdz(r, m) && jest;
    return jest;
}

void Sesja::OtworzMiesiac(int rok, int mies, int& wynik) {
    wynik = 1;
    if (!ZnajdzMiesiac(rok, mies)) return;
    for (const TabelaDef* t : schemat::TabeleMiesiaca)
        if (!cnPlace.jestTabela(nazwaMiesiaca(t->nazwa, rok, mies))) return;
    rok_ = mies_ = 0;
    for (Recordset* rs : {&rsPLA, &rsPLB, &rsPLS, &rsPLD}) {
        rs->Open(cnPlace, nazwaMiesiaca(rs->tabela().nazwa, rok, mies));
        rs->Sort({rs->tabela().nr(0), rs->tabela().nr(1)});
        rs->MoveFirst();
    }
    rsZASILEK.Open(cnPlace, {},
                   {{schemat::ZASILEK("ROKMIES"), Kryterium::Operator::Rowne, RokMies{rok, mies}.klucz()}});
    rok_ = rok;
    mies_ = mies;
    wynik = 0;
}

void Sesja::ZamknijMiesiac() {
    for (Recordset* rs : {&rsPLA, &rsPLB, &rsPLS, &rsPLD, &rsZASILEK}) rs->Close();
    rok_ = mies_ = 0;
}

bool Sesja::PrzesunWierszMiesiaca(int rok, int mies, bool przesun) {
    if (rok_ != rok || mies_ != mies) {
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
    for (Recordset* rs : {&rsPLB, &rsPLD, &rsPLS}) wszystkie = rs->Znajdz(prc, lista) && wszystkie;
    return wszystkie;
}

bool Sesja::UstawPracownika(qint64 prcId) {
    bool wszystkie = true;
    for (Recordset* rs : {&rsPRACSK, &rsPRACDP, &rsPRACPR, &rsPRACZUS, &rsPRACINF})
        wszystkie = rs->Znajdz(prcId) && wszystkie;
    return wszystkie;
}

QList<Recordset*> Sesja::uchwyty() {
    return {&rsPRACDP,  &rsPRACSK, &rsPRACINF, &rsPRACPR, &rsPRACZUS, &rsSZ_PL,   &rsPLACE, &rsPLACEN,
            &rsPLACEK,  &rsPLA,    &rsPLB,     &rsPLS,    &rsPLD,     &rsZASILEK, &rsURL,   &rsZW,
            &rsM_PRACY, &rsUS,     &rsNADG,    &rsZUS,    &rsPIT4,    &rsPIT11,   &rsPIT40, &rsPIT8B,
            &rsUZL,     &rsUOD,    &rsHON,     &rsKONTA,  &rsRODZINA, &rsUMOP,    &rsKON,   &rsUZYTKOWNICY};
}

void Sesja::OdswiezUchwyty() {
    for (Recordset* rs : uchwyty()) {
        if (!rs->otwarty()) continue;
        if (cnPlace.jestTabela(rs->nazwa()))
            rs->Requery();
        else
            rs->Close();
    }
    if (!rsPLA.otwarty() || !rsPLB.otwarty() || !rsPLS.otwarty() || !rsPLD.otwarty()) ZamknijMiesiac();
}

} // namespace tornel::store
