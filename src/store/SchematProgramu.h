// Schema of what the program keeps for itself: its constants and users.
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
    {"haslo", Text, 30},
    {"Typ", Short}, // 0 administrator, otherwise bits: 1 "Kadry", 2 "Płace"
};

} // namespace kolumny

namespace klucze {
inline constexpr std::string_view Num[] = {"Num"};
inline constexpr std::string_view Uzytkownik[] = {"Nazwa"};
} // namespace klucze

inline constexpr TabelaDef KON{"KON", kolumny::KON, klucze::Num};
inline constexpr TabelaDef UZYTKOWNICY{"UZYTKOWNICY", kolumny::UZYTKOWNICY, klucze::Uzytkownik};

} // namespace schemat

} // namespace tornel::store
