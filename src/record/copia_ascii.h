#pragma once

#include "record/record_store.h"

namespace veldix {

/// Whether a record of the name `FicheroAscii` is there: its `.DAT`, in any case.
bool ExisteCopia(const RecordStore& s);

/// Writes the record, opened in BINARY form, as an ASCII one of the path `FicheroAscii`. Raises 55, with
/// nothing touched, where a file of the copy is one of the record's own; else as its two steps.
void ConvierteAscii(RecordStore& s);

/// Writes `FicheroAscii` & ".DAT" from `FicheroDat`: a line a sample, as many as the record has, with the
/// raw integers; a file that ends earlier gives fewer. Where `ConvierteYSale` is set the samples and states
/// in memory are dropped first, their sizes kept. Each file is replaced when the new one is whole. Raises
/// what reading and writing raise.
void EscribeAsciiDat(RecordStore& s);

/// Copies `.hdr`, where there is one, and `.cfg` of `FicheroDat` to `FicheroAscii`, the latter with CR LF
/// behind each line and its last lines rewritten for ASCII. These are taken to be BINARY and, for 1997, a
/// multiplier of one digit: longer ones leave a part of themselves. Raises what reading and writing raise;
/// 6 over 32767 octets, 5 for a `.cfg` shorter than those lines, which then is a plain copy.
void CopiaCabecera(const RecordStore& s);

}  // namespace veldix
