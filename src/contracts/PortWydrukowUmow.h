// The prints of contracts as a port: the screens of contracts offer what they are given, and know nothing of
// paper.
#pragma once
#include "common/RokMies.h"
#include "contracts/RodzajeUmow.h"
#include <functional>
#include <QList>

class QWidget;

namespace tornel::contracts {

/// Each member prints or shows; one that is empty is not offered. They may throw `Blad`.
struct PortWydrukowUmow {
    std::function<void(const RodzajUmowy& rodzaj, qint64 id, QWidget* rodzic)> umowa = {};
    std::function<void(const RodzajUmowy& rodzaj, qint64 id, QWidget* rodzic)> rachunek = {};
    /// The contracts with these keys in this order, with sums; `tytul` says which they are.
    std::function<void(const RodzajUmowy& rodzaj, const QString& tytul, const QList<qint64>& klucze,
                       QWidget* rodzic)>
        zestawienie = {};
};

} // namespace tornel::contracts
