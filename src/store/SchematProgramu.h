// Schema of what the program keeps for itself: its constants, its users, what it printed and wrote.
#pragma once
#include "store/SeriaKolumn.h"

namespace tornel::store {

namespace schemat {

namespace kolumny {

using enum Typ;
using namespace rozmiary;

/// Program constants.
inline constexpr KolumnaDef KON[] = {
    {"Num", Short, 0, true},
    {"Wart", Text, Stala},
};

/// Users of the program. The password is clear text: deliberate.
inline constexpr KolumnaDef UZYTKOWNICY[] = {
    {"Nazwa", Text, 30, true},
    {"haslo", Text, 30, false, true},
    {"Typ", Short}, // 0 administrator, otherwise bits: 1 "Kadry", 2 "Płace"
};

/// Papers printed and files written, never changed afterwards.
inline constexpr KolumnaDef WYKONANE[] = {
    {"ROKMIES", Text, 6, true}, // yyyymm that it is about; of one about no month, in which it was made
    {"NR", Integer, 0, true},   // within the month, from 1 in the order of making
    {"RODZAJ", Text, 20},       // what it is
    {"ZRODLO", Text, 10},       // table of its data
    {"LISTA", Text, 50},        // list symbols, empty for all
    {"KOMU", Integer},          // employee or tax office, 0 for no single one
    {"DOKUMENT", Integer},      // number of the contract, declaration or package
    {"KWOTA", Currency},        // zł
    {"DZIEN", Date},            // when and by whom it was made
    {"CZAS", Text, 8},
    {"KTO", Text, 30},
    {"PLIK", Memo},
    {"OPIS", Memo},
};

/// The journal: one row for each action and event.
inline constexpr KolumnaDef DZIENNIK[] = {
    {"STAN", Byte, 0, true}, // whether it can be undone, or made again
    {"ID", Integer, 0, true}, {"DZIEN", Date},    {"CZAS", Text, 8},
    {"KTO", Text, 30},        {"CZYNNOSC", Memo}, // in words
    {"TABELE", Memo},                             // names, a comma and a blank between them
    {"WIERSZY", Integer},                         // written
    {"OSOBY", Memo},                              // ",7,12,"; "*" for many
    {"DOTYCZY", Integer},                         // of an undoing and a redoing, the action's ID
};

/// What the actions changed, packed: bytes, not text.
inline constexpr KolumnaDef DZIENNIK_ZMIANY[] = {
    {"WPIS", Integer, 0, true},
    {"NR", Integer, 0, true},
    {"DANE", Memo},
};

} // namespace kolumny

namespace klucze {
inline constexpr std::string_view Num[] = {"Num"};
inline constexpr std::string_view Uzytkownik[] = {"Nazwa"};
inline constexpr std::string_view Wykonanie[] = {"ROKMIES", "NR"};
inline constexpr std::string_view Wpis[] = {"STAN", "ID"};
inline constexpr std::string_view ZmianyWpisu[] = {"WPIS", "NR"};
} // namespace klucze

inline constexpr TabelaDef KON{"KON", kolumny::KON, klucze::Num};
inline constexpr TabelaDef UZYTKOWNICY{
    "UZYTKOWNICY", kolumny::UZYTKOWNICY, klucze::Uzytkownik, Klucz::Jednoznaczny, {}, Slad::Pokazywany};
inline constexpr TabelaDef WYKONANE{"WYKONANE", kolumny::WYKONANE, klucze::Wykonanie, Klucz::Jednoznaczny,
                                    {},         Slad::Pokazywany};
inline constexpr TabelaDef DZIENNIK{"DZIENNIK", kolumny::DZIENNIK, klucze::Wpis, Klucz::Jednoznaczny,
                                    {},         Slad::Zaden};
inline constexpr TabelaDef DZIENNIK_ZMIANY{
    "DZIENNIK_ZMIANY", kolumny::DZIENNIK_ZMIANY, klucze::ZmianyWpisu, Klucz::Jednoznaczny, {}, Slad::Zaden};

} // namespace schemat

} // namespace tornel::store
