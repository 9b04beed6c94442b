#pragma once

#include <cstdint>
#include <string>

#include "record/record_store.h"

namespace veldix {

std::string RutaFicher(const RecordStore& s);

/// Writes `ficher.ini` from the store; a failure is ignored.
void EscribeSesion(const RecordStore& s);

/// Reads `ficher.ini` and writes it back: with `idioma` on its first line where one is given, else as it was
/// read, its language taken. Raises what reading and writing raise, 9 for a count below -1; a short file is
/// not written.
void RepasaSesion(RecordStore& s, const std::int16_t* idioma);

/// Sets `FicheroIdioma` to the Spanish or the English file of `DirIni`.
void EligeFicheroIdioma(RecordStore& s, bool espanol);

/// The file part of a switch of language: both settings files take `idioma` on line 1 (the default folders
/// are refreshed on the way), and `FicheroIdioma` that of the language. Its texts are the caller's to load.
/// Raises as its steps; where the second file fails the first gets its language back, unless the disk is
/// full.
void CambiaIdiomaFicheros(RecordStore& s, std::int16_t idioma);

}  // namespace veldix
