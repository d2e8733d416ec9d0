// The commands of the console as a table: name, what follows it, what it does.
#pragma once
#include "cli/Wywolanie.h"
#include <QList>
#include <QStringView>

namespace tornel::cli {

/// An option of the command line, without its hyphens; `wartosc` is empty for a switch.
struct OpcjaPolecenia {
    QStringView nazwa;
    QStringView wartosc;
};

struct Polecenie {
    QStringView nazwa;     ///< one or two words
    QStringView argumenty; ///< as the help shows them
    QStringView opis;      ///< one line of help
    int najmniej = 0;      ///< positional arguments behind the name
    int najwiecej = 0;
    QList<OpcjaPolecenia> opcje; ///< besides those that every command takes
    /// The work; gives the status. Throws `ZleUzycie`, `Blad`, `Przerwanie`.
    int (*wykonaj)(Wywolanie& w) = nullptr;
};

/// As many positional arguments as wanted.
inline constexpr int kDowolnieWiele = 1'000'000;

[[nodiscard]] QList<Polecenie> poleceniaBazy();
[[nodiscard]] QList<Polecenie> poleceniaRegul();
[[nodiscard]] QList<Polecenie> poleceniaKadr();
[[nodiscard]] QList<Polecenie> poleceniaNieobecnosci();
[[nodiscard]] QList<Polecenie> poleceniaTabel();
[[nodiscard]] QList<Polecenie> poleceniaMiesiecy();
[[nodiscard]] QList<Polecenie> poleceniaListy();
[[nodiscard]] QList<Polecenie> poleceniaNadgodzin();
[[nodiscard]] QList<Polecenie> poleceniaBanku();
[[nodiscard]] QList<Polecenie> poleceniaPodatkow();
[[nodiscard]] QList<Polecenie> poleceniaWydrukow();
[[nodiscard]] QList<Polecenie> poleceniaZestawien();
[[nodiscard]] QList<Polecenie> poleceniaUmow();
[[nodiscard]] QList<Polecenie> poleceniaUmowOPrace();
[[nodiscard]] QList<Polecenie> poleceniaZus();
[[nodiscard]] QList<Polecenie> poleceniaArchiwum();
[[nodiscard]] QList<Polecenie> poleceniaStruktury();
[[nodiscard]] QList<Polecenie> poleceniaDziennika();

} // namespace tornel::cli
