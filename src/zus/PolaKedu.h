// The words in which the tables of blocks are written.
#pragma once
#include "zus/OpisKedu.h"

namespace tornel::zus::pola {

/// What the fields with a person's name are called, by which a view tells whom a block is about.
inline constexpr QStringView kNapisNazwiska = u"Nazwisko", kNapisImienia = u"Imię";

constexpr PoleKedu tekst(int szer, ZrodloPola zrodlo, QStringView napis) {
    return {Pisarz::Tekst, szer, zrodlo, napis};
}
constexpr PoleKedu cyfry(int szer, ZrodloPola zrodlo, QStringView napis) {
    return {Pisarz::Cyfry, szer, zrodlo, napis};
}
constexpr PoleKedu data(ZrodloPola zrodlo, QStringView napis) { return {Pisarz::Data, 8, zrodlo, napis}; }
constexpr PoleKedu okres(Kolumna od, Kolumna dokad, QStringView napis) {
    return {Pisarz::Okres, 16, DwieKolumny{od, dokad}, napis};
}
constexpr PoleKedu kwota(int szer, ZrodloPola zrodlo, QStringView napis) {
    return {Pisarz::Kwota, szer, zrodlo, napis};
}
constexpr PoleKedu licznik(int szer, ZrodloPola zrodlo, QStringView napis) {
    return {Pisarz::Licznik, szer, zrodlo, napis};
}
constexpr PoleKedu znacznik(ZrodloPola zrodlo, QStringView napis) {
    return {Pisarz::Znacznik, 1, zrodlo, napis};
}
constexpr PoleKedu krzyzyk(ZrodloPola zrodlo, QStringView napis) {
    return {Pisarz::Krzyzyk, 1, zrodlo, napis};
}
constexpr PoleKedu bezKrzyzyka(ZrodloPola zrodlo, QStringView napis) {
    return {Pisarz::BezKrzyzyka, 1, zrodlo, napis};
}
/// "X" when the number is `ile`.
constexpr PoleKedu rowny(int ile, ZrodloPola zrodlo, QStringView napis) {
    return {Pisarz::Rowny, 1, zrodlo, napis, ile};
}
/// The digit by which the number exceeds `od`.
constexpr PoleKedu kolejny(int od, ZrodloPola zrodlo, QStringView napis) {
    return {Pisarz::Kolejny, 1, zrodlo, napis, od};
}
constexpr PoleKedu stale(QStringView wartosc, QStringView napis) {
    return {Pisarz::Tekst, static_cast<int>(wartosc.size()), wartosc, napis};
}
/// What the program leaves empty.
constexpr PoleKedu odstepy(int szer, QStringView napis = {}) { return {Pisarz::Tekst, szer, {}, napis}; }
constexpr PoleKedu zera(int szer, QStringView napis = {}) { return {Pisarz::Zera, szer, {}, napis}; }

/// The field on the line of the one before it.
constexpr PoleKedu dalej(PoleKedu pole) {
    pole.wTejLinii = true;
    return pole;
}
constexpr PoleKedu gdy(bool (*warunek)(const KontekstKedu&), PoleKedu pole) {
    pole.warunek = warunek;
    return pole;
}

} // namespace tornel::zus::pola
