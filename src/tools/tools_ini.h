#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "record/record_store.h"

namespace veldix {

/// `tools.ini` as a whole: language and default folders stand in the same file as the external tools.
struct ToolsIni {
    std::int16_t Idioma = 0;
    std::string DirDatos, DirPlantillas, DirAplic;
    std::vector<std::string> herramientas;  ///< "name=command", without its double quotes
};

std::string RutaTools(const RecordStore& s);

/// Reads `tools.ini`. Raises what opening raises, 62 where it is short, 13 or 6 for a number that is none,
/// 9 for a negative count.
ToolsIni LeeToolsIni(const RecordStore& s);
/// Replaces `tools.ini` whole. Raises what writing raises; the old file then stands.
void EscribeToolsIni(const RecordStore& s, const ToolsIni& t);
/// Replaces it with the tools of `t`, language and folders those of the store. Raises the same.
void EscribeHerramientas(const RecordStore& s, ToolsIni t);

/// Language, default folders and the count of tools, which it returns, from the head of `tools.ini`.
/// What was read before a failure stays. Raises as LeeToolsIni, but takes any count.
std::int16_t LeeTools(RecordStore& s);

/// The three default folders alone. Raises as LeeToolsIni.
void LeeDirectorios(RecordStore& s);

/// The language line of `tools.ini`. Raises as LeeToolsIni.
std::int16_t LeeIdiomaTools(const RecordStore& s);

}  // namespace veldix
