#pragma once

#include "platform/ficheros.h"
#include "record/record_store.h"

namespace veldix {

/// Whether a path without extension ends in a name that files can have.
bool TieneNombre(const std::string& tronco);

/// Whether a record of the name `FicheroAscii` is there: its `.DAT`, in any case.
bool ExisteCopia(const RecordStore& s);

/// Writes the record, opened in BINARY form, as an ASCII one of the path `FicheroAscii`; of a record that is
/// there the three files are replaced, under its spelling, when all are written. Raises 52 for a
/// path without a name and 55, with nothing touched, where the copy has the record's name or one of its
/// files; else as its two steps.
void ConvierteAscii(RecordStore& s);

/// Writes `FicheroAscii` & ".DAT" from `FicheroDat`: a line a sample with the raw integers, as many as
/// `Muestras` has rows; a file that ends earlier gives fewer. Where `ConvierteYSale` is set, samples and
/// states in memory are dropped first, their sizes kept. Raises what reading and writing raise, 53 without a
/// `.dat`.
void EscribeAsciiDat(RecordStore& s, FicherosNuevos& copia);

/// Copies `.hdr`, where there is one, and `.cfg` of `FicheroDat` to `FicheroAscii`, the latter with CR LF
/// behind each line and its last lines rewritten for ASCII. These are taken to be BINARY and, for 1997, a
/// multiplier of one digit: longer ones leave a part of themselves. Gives 0, or the error that keeps the last
/// lines as they are: 6 over 32767 octets, 5 where there are fewer than those lines have. Raises what reading
/// and writing raise, 53 without a `.cfg`.
int CopiaCabecera(const RecordStore& s, FicherosNuevos& copia);

}  // namespace veldix
