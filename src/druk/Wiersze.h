// The rows of a print, given by logic as typed values.
#pragma once
#include "store/Wartosc.h"
#include <QList>

namespace tornel::druk {

class WierszeDruku {
public:
    virtual ~WierszeDruku() = default;
    [[nodiscard]] virtual int ile() const = 0;
    /// The value of a field, both counted from 0. Asked for in any order, each time a page is drawn.
    [[nodiscard]] virtual Wartosc pole(int wiersz, int nr) const = 0;
};

/// Rows held as they are.
class WierszeWPamieci final : public WierszeDruku {
public:
    explicit WierszeWPamieci(QList<QList<Wartosc>> wiersze) : wiersze_(std::move(wiersze)) {}
    [[nodiscard]] int ile() const override { return static_cast<int>(wiersze_.size()); }
    [[nodiscard]] Wartosc pole(int wiersz, int nr) const override { return wiersze_.at(wiersz).at(nr); }

private:
    QList<QList<Wartosc>> wiersze_;
};

} // namespace tornel::druk
