// The example firm: a small furniture maker whose staff shows what the payroll knows, always the same.
#pragma once
#include "personnel/Pracownicy.h"
#include <QString>

namespace tornel::start {

inline constexpr int kPracownikowPrzykladu = 12;
inline constexpr int kMiesiecyPrzykladu = 3;
inline constexpr int kNajwiecejPracownikow = static_cast<int>(kNajwyzszyNumer);

/// Makes a new database with the firm, `liczbaPracownikow` (1 to `kNajwiecejPracownikow`) employees and the
/// first `miesiecy` (0 to 12) months of 2001 computed, preceded, unless there is none, by the last quarter of
/// 2000, which the first averages are made of; all months but the last are blocked. The first twelve
/// employees are written out by hand, the others follow their patterns by a fixed sequence of numbers. The
/// file appears when it is complete. Throws `Blad` for a number out of range and an existing file; no file is
/// left behind then.
void UtworzPrzyklad(const QString& sciezka, int liczbaPracownikow = kPracownikowPrzykladu,
                    int miesiecy = kMiesiecyPrzykladu, const QString& folderProgramu = {});

} // namespace tornel::start
