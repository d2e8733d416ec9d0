// The journal as it is written: every action adds what it changed, in its own transaction.
#pragma once
#include "store/PakietZmian.h"
#include "store/Polaczenie.h"
#include <functional>
#include <map>
#include <QDateTime>
#include <QHash>
#include <set>

namespace tornel::store {

/// What can become of an entry.
enum class StanWpisu : std::uint8_t {
    Zdarzenie, ///< nothing that could be undone: a login, a printed paper, an undoing
    Wykonana,  ///< an action that can be undone, the latest one first
    Cofnieta,  ///< an action undone that can be made again
    Zamknieta, ///< an action of a chain that has ended
    Odcieta,   ///< an action undone, and then another one was made
};

class ZapisDziennika {
public:
    explicit ZapisDziennika(Polaczenie& polaczenie) : polaczenie_(polaczenie) {}
    ZapisDziennika(const ZapisDziennika&) = delete;
    ZapisDziennika& operator=(const ZapisDziennika&) = delete;

    /// From where the time of an entry comes; without it entries have none.
    void UstawZegar(std::function<QDateTime()> teraz) { teraz_ = std::move(teraz); }
    /// From where the name of the user at work comes.
    void UstawUzytkownika(std::function<QString()> kto) { kto_ = std::move(kto); }

    /// Adds an entry without data, in a transaction of its own or as a part of the open one. `opis` is in
    /// words, as "Logowanie"; `dotyczy` the ID of another entry, 0 for none. Writes `DZIENNIK`. Throws
    /// `BladBazy`.
    void dopiszZdarzenie(const QString& opis, qint64 dotyczy = 0);

    // Of the table handles and the tables of months, inside an open transaction.

    /// Where changes of the table go.
    [[nodiscard]] PisarzPakietu& pakiet(const QString& tabela, const TabelaDef& szablon);
    /// After each change: counts the row, and the employee (0 for none).
    void policz(PisarzPakietu& pakiet, qint64 osoba);
    void utworzonaTabela(const QString& nazwa, const TabelaDef& szablon);
    /// Before it is dropped: its rows are kept.
    void usuwanaTabela(const QString& nazwa);

private:
    friend class Transakcja;
    void dopiszCzynnosc(const QString& czynnosc); // before the commit
    void zatwierdzono();
    void porzuc();

    [[nodiscard]] qint64 numer(); // of the open action's entry
    [[nodiscard]] PisarzPakietu& pakiet(const QString& tabela, const TabelaDef* szablon,
                                        const QStringList& kolumny);
    void wypisz(PisarzPakietu& pakiet);
    struct NowyWpis {
        qint64 id = 0;
        StanWpisu stan = StanWpisu::Zdarzenie;
        QString czynnosc = {}, tabele = {};
        qint64 wierszy = 0;
        QString osoby = {};
        qint64 dotyczy = 0;
    };
    void dopiszWpis(const NowyWpis& wpis);
    [[nodiscard]] QString napisOsob() const;

    Polaczenie& polaczenie_;
    std::function<QDateTime()> teraz_;
    std::function<QString()> kto_;
    qint64 nastepny_ = 0; // the next entry's ID, 0 until it is known
    qint64 id_ = 0;       // the open action's, 0 until it has one
    QHash<QString, PisarzPakietu*> tabele_;
    std::vector<std::unique_ptr<PisarzPakietu>> pakiety_; // in the order of their first change
    std::unique_ptr<Instrukcja> wstawZmiany_, wstawWpis_;
    int nrPakietu_ = 0;
    qint64 wierszy_ = 0;
    std::set<qint64> osoby_; // at most one more than are told
};

} // namespace tornel::store
