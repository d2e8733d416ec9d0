#include "personnel/Wypowiedzenie.h"
#include "common/RokMies.h"
#include "personnel/SwietaUstawowe.h"
#include <algorithm>

namespace tornel::personnel {

namespace {

using Miara = OkresWypowiedzenia::Miara;

constexpr OkresWypowiedzenia kTrzyDni{3, Miara::DniRobocze}, kTydzien{1, Miara::Tygodnie},
    kDwaTygodnie{2, Miara::Tygodnie}, kMiesiac{1, Miara::Miesiace}, kTrzyMiesiace{3, Miara::Miesiace};

/// Months of employment from which the notice of an unlimited contract is longer.
constexpr int kPolRoku = 6, kTrzyLata = 36;
/// Months that a trial lasts at most; such a one has the longest notice of trials.
constexpr int kCalyOkresProbny = 3;
constexpr int kDniDwochTygodni = 14;

bool dzienRoboczy(QDate dzien) {
    const auto swieta = SwietaUstawowe(dzien.year());
    return dzien.dayOfWeek() != Qt::Sunday &&
           std::ranges::none_of(swieta, [&](const Swieto& s) { return s.data == dzien; });
}

QDate poDniachRoboczych(QDate dzien, int ile) {
    while (ile > 0) {
        dzien = dzien.addDays(1);
        ile -= dzienRoboczy(dzien) ? 1 : 0;
    }
    return dzien;
}

OkresWypowiedzenia okresProbny(const WarunkiPracy& w) {
    if (!w.dokad.isValid() || w.dokad >= w.od.addMonths(kCalyOkresProbny).addDays(-1)) return kDwaTygodnie;
    return w.od.daysTo(w.dokad) + 1 > kDniDwochTygodni ? kTydzien : kTrzyDni;
}

OkresWypowiedzenia bezterminowa(QDate zatrudniony, QDate dzien) {
    const auto przepracuje = [&](const OkresWypowiedzenia& okres, int miesiecy) {
        return okres.koniec(dzien) >= zatrudniony.addMonths(miesiecy).addDays(-1);
    };
    if (!przepracuje(kDwaTygodnie, kPolRoku)) return kDwaTygodnie;
    return przepracuje(kMiesiac, kTrzyLata) ? kTrzyMiesiace : kMiesiac;
}

} // namespace

QString OkresWypowiedzenia::napis() const {
    switch (miara) {
    case Miara::DniRobocze:
        return QStringLiteral("%1 dni robocze").arg(ile);
    case Miara::Tygodnie:
        return ile == 1 ? QStringLiteral("1 tydzień") : QStringLiteral("%1 tygodnie").arg(ile);
    case Miara::Miesiace:
        return ile == 1 ? QStringLiteral("1 miesiąc") : QStringLiteral("%1 miesiące").arg(ile);
    }
    return {};
}

QDate OkresWypowiedzenia::koniec(QDate dzien) const {
    switch (miara) {
    case Miara::DniRobocze:
        return poDniachRoboczych(dzien, ile);
    case Miara::Tygodnie: {
        const QDate minely = dzien.addDays(qint64{7} * ile);
        return minely.addDays(qint64{Qt::Saturday - minely.dayOfWeek() + 7} % 7);
    }
    case Miara::Miesiace:
        return RokMies::dnia(dzien).plus(ile).ostatniDzien();
    }
    return {};
}

int OkresWypowiedzenia::dniNaSzukaniePracy() const {
    if (*this == kTrzyMiesiace) return 3;
    return *this == kMiesiac || *this == kDwaTygodnie ? 2 : 0;
}

bool DluzszaNiz(const WarunkiPracy& warunki, int miesiecy) {
    return !warunki.dokad.isValid() || warunki.dokad >= warunki.od.addMonths(miesiecy);
}

std::optional<OkresWypowiedzenia> OkresDlaUmowy(const UmowaOPrace& umowa, QDate zatrudniony, QDate dzien) {
    switch (static_cast<RodzajUmowyOPrace>(umowa.rodzaj)) {
    case RodzajUmowyOPrace::OkresProbny:
        return okresProbny(umowa.warunki);
    case RodzajUmowyOPrace::CzasOkreslony:
        return umowa.wypowiadalna && DluzszaNiz(umowa.warunki, kPolRoku) ? std::optional(kDwaTygodnie)
                                                                         : std::nullopt;
    case RodzajUmowyOPrace::CzasNieokreslony:
        return bezterminowa(zatrudniony.isValid() ? zatrudniony : umowa.warunki.od, dzien);
    case RodzajUmowyOPrace::CzasPracy:
        break;
    }
    return std::nullopt;
}

} // namespace tornel::personnel
