#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "record/record_store.h"

namespace veldix {

/// `tools.ini` as a whole.
struct ToolsIni {
    std::int16_t Idioma = 0;
    std::string DirDatos, DirPlantillas, DirAplic;
    std::vector<std::string> herramientas;  ///< "name=command", without its double quotes
};

std::string RutaTools(const RecordStore& s);
std::string RutaFicher(const RecordStore& s);

/// Reads `tools.ini`. Raises what opening raises, 62 where it is short, 13 or 6 for a number that is none.
ToolsIni LeeToolsIni(const RecordStore& s);
/// Replaces `tools.ini` whole. Raises what writing raises; the old file then stands.
void EscribeToolsIni(const RecordStore& s, const ToolsIni& t);

/// Language, default folders and the count of tools, which it returns, from the head of `tools.ini`.
/// What was read before a failure stays. Raises as LeeToolsIni.
std::int16_t LeeTools(RecordStore& s);

/// The three default folders alone. Raises as LeeToolsIni.
void LeeDirectorios(RecordStore& s);

/// The language line of `tools.ini`. Raises as LeeToolsIni.
std::int16_t LeeIdiomaTools(const RecordStore& s);

/// Writes `ficher.ini` from the store; a failure is ignored.
void EscribeSesion(const RecordStore& s);

/// Reads `ficher.ini` and writes it back: with `idioma` on its first line where one is given, else as it was
/// read, its language taken. Raises what reading and writing raise; a short file is not written.
void RepasaSesion(RecordStore& s, const std::int16_t* idioma);

/// Sets `FicheroIdioma` to the Spanish or the English file of `DirIni`.
void EligeFicheroIdioma(RecordStore& s, bool espanol);

/// The file part of a switch of language: both settings files take `idioma` on line 1 (the default folders
/// are refreshed on the way), then the texts are loaded anew. Raises as its steps.
void CambiaIdiomaFicheros(RecordStore& s, std::int16_t idioma);

/// A tool's name and command from its line "name=command". The "=" is sought from the second character of
/// the quoted line on, that is from the first of the text. Empty where it is missing.
struct Herramienta {
    std::string nombre, orden;
};
Herramienta ParteHerramienta(const std::string& texto);

}  // namespace veldix
