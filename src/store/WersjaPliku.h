// The version of the data in the file, and the steps that bring an older file up to date.
#pragma once
#include "store/Polaczenie.h"
#include <optional>
#include <QString>
#include <QStringView>
#include <span>

namespace tornel::store {

/// From one version to the next.
struct KrokWersji {
    QStringView opis; ///< what it brings, for the failure's message
    void (*wykonaj)(Polaczenie& polaczenie);
};

/// All steps in their order: the first leads from version 0 to 1. Their number is the version of the data
/// that this program reads and writes. A step that was given away is never changed again: it makes the tables
/// as they were at its time, whatever later ones do to them.
[[nodiscard]] std::span<const KrokWersji> KrokiWersji();

/// The version that stands in the file.
[[nodiscard]] int WersjaPliku(Polaczenie& polaczenie);
/// Writes it, as a part of the action that is open.
void UstawWersje(Polaczenie& polaczenie, int wersja);

/// An older file was brought up to date.
struct ZmianaWersji {
    int z = 0;
    int na = 0;
    QString kopia; ///< the file as it was before
};

/// Brings the file up to the last of `kroki` in one action, after a copy of it was put beside it, named with
/// its version and the time of its last change; an existing file is never overwritten. A file of that version
/// stays untouched and gives nothing. Throws `BladBazy` for a file of a newer version, naming both, and when
/// the copy or a step fails: then the file is as it was.
std::optional<ZmianaWersji> DoprowadzDoWersji(Polaczenie& polaczenie,
                                              std::span<const KrokWersji> kroki = KrokiWersji());

} // namespace tornel::store
