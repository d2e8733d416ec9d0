#include "personnel/KsiazkiAdresowe.h"

namespace tornel::personnel {

namespace {

constexpr UzycieNumeru kUzyciaUrzedu[] = {
    {schemat::PRACPR("us_id"), u"pracownicy"},
    {schemat::UZL("us_id"), u"umowy zlecenia"},
    {schemat::UOD("us_id"), u"umowy o dzieło"},
    {schemat::HON("us_id"), u"honoraria"},
};

constexpr UzycieNumeru kUzyciaMiejsca[] = {
    {schemat::PRACPR("mp_id"), u"pracownicy"},
    {schemat::UMOP("mp_id"), u"umowy o pracę"},
};

} // namespace

const KartotekaDef& UrzedySkarbowe() {
    static const KartotekaDef def{
        .uchwyt = &Sesja::rsUS,
        .czynnosc = u"Urzędy skarbowe",
        .pytanie = u"Czy na pewno usunąć wybrany urząd skarbowy z listy urzędów ?",
        .odmowa = u"Nie można usunąć wybranego urzędu skarbowego, ponieważ jest używany.",
        .uzycia = kUzyciaUrzedu,
        .stala = &Stale::USUzytk,
        .nazwaStalej = u"Urząd skarbowy pracodawcy",
    };
    return def;
}

const KartotekaDef& MiejscaPracy() {
    static const KartotekaDef def{
        .uchwyt = &Sesja::rsM_PRACY,
        .czynnosc = u"Adresy działalności",
        .pytanie = u"Czy na pewno usunąć wybrany adres działalności z listy adresów ?",
        .odmowa = u"Nie można usunąć wybranego adresu działalności, ponieważ jest używany.",
        .nowy = {{schemat::M_PRACY("zza"), QStringLiteral("0")}},
        .uzycia = kUzyciaMiejsca,
    };
    return def;
}

} // namespace tornel::personnel
