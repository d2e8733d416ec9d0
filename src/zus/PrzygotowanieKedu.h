// From the choice of documents to the written collection: everything that is asked on the way.
#pragma once
#include "zus/KontrolaKedu.h"

namespace tornel::zus {

/// What the clerk is asked for besides messages and questions. Nothing when he gives up.
class PytaniaKedu {
public:
    virtual ~PytaniaKedu() = default;
    /// A file to write; `folder`: where the choice begins.
    [[nodiscard]] virtual std::optional<QString> plik(const QString& folder) = 0;
    [[nodiscard]] virtual std::optional<qint64> pracownik() = 0;
    [[nodiscard]] virtual std::optional<QDate> dzien(const QString& pytanie) = 0;
    [[nodiscard]] virtual std::optional<RokMies> miesiac(const QString& pytanie) = 0;
    /// Shows what the insurer would reject; false to go back. `sprawdz` looks again after something was
    /// mended.
    [[nodiscard]] virtual bool mimoUwag(const std::function<QList<UwagaKedu>()>& sprawdz) = 0;
};

class PrzygotowanieKedu {
public:
    PrzygotowanieKedu(Otoczenie& otoczenie, PytaniaKedu& pytania) : o_(otoczenie), p_(pytania) {}

    /// Asks for the file, the employees, the contracts, the months and the identifiers, shows what the
    /// insurer would reject, and writes the collection (`ZbiorKedu::StworzPlik`). Gives what was ordered and
    /// what became of it; nothing when the clerk gave up, and then nothing was written. Throws `Blad`.
    struct Wykonane {
        ZamowienieKedu zamowienie;
        WynikKedu wynik;
    };
    std::optional<Wykonane> Przygotuj(const WyborDokumentow& wybor, const QDateTime& kiedy);

private:
    [[nodiscard]] std::optional<QString> wybierzPlik();
    /// For whom and for when; false when the clerk gave up.
    [[nodiscard]] bool uzupelnij(ZamowienieKedu& zamowienie);
    [[nodiscard]] OkresZlecen okresZlecen();

    Otoczenie& o_;
    PytaniaKedu& p_;
};

} // namespace tornel::zus
