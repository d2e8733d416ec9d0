// Undo and redo of whole actions, one after the other, from the journal; also those of an earlier sitting.
#pragma once
#include "common/Blad.h"
#include "store/Dziennik.h"

namespace tornel::store {

/// An action cannot be undone or made again; nothing was changed. The message names the rows that stand in
/// the way.
class OdmowaCofniecia : public Blad {
public:
    using Blad::Blad;
};

enum class Kierunek { Cofnij, Ponow };

class Cofanie {
public:
    explicit Cofanie(Polaczenie& polaczenie) : polaczenie_(polaczenie) {}

    /// The action that would be undone, or made again, now; nothing when there is none. Throws `BladBazy`.
    [[nodiscard]] std::optional<WpisDziennika> nastepna(Kierunek kierunek) const;
    /// The file that the action has written and marked its data by, as the bank's; empty for none. Undoing
    /// takes the marks off while the file stays, so whoever undoes it asks first.
    [[nodiscard]] QString plikCzynnosci(const WpisDziennika& wpis) const;
    /// Undoes the last action or makes the undone one again, as an action of its own with an entry of its
    /// own. Table handles have to be read again. Throws `OdmowaCofniecia` when there is none or a row is no
    /// longer as the action left it, `BladBazy` for a failure of the file: then everything is as it was.
    WpisDziennika wykonaj(Kierunek kierunek);

private:
    Polaczenie& polaczenie_;
};

} // namespace tornel::store
