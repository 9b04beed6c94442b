#include "tools/herramientas.h"

#include <gtest/gtest.h>

namespace veldix {
namespace {

TEST(Herramientas, AToolIsRefusedForAnotherReasonOrAdmitted)
{
    const std::vector<std::string> lineas = {"Calc=/bin/calc.exe", "A=B=/bin/b.exe", "", "=/bin/nadie.exe"};
    const struct {
        const char *nombre, *ruta;
        int texto;
    } casos[] = {
        {"Otra", "/bin/otra.exe", 0},
        {"  ", "/x/veldix.exe", 232},
        {"Calc", "/opt/otro VelDix.eXe", 261},
        {"Calc", "veldix.exe", 261},
        {"Otra", "veldix.exe ", 233},
        {"Otra", "eldix.exe", 0},
        {"Calc", "/bin/calc.Exe", 233},
        {"Otra", "", 233},
        {"Otra", "/bin/otraEXE", 0},  // the point is not looked at
        {"Calc", "/bin/calc.exe", 234},
        {"calc", "/bin/calc.exe", 235},
        {" Calc", "/bin/Calc.exe", 0},
        {"A", "/bin/otra.exe", 234},  // what is read back of a name with "="
        {"A=B", "/bin/b.exe", 0},
    };
    for (const auto& c : casos)
        EXPECT_EQ(RechazoHerramienta(lineas, {c.nombre, c.ruta}), c.texto) << c.nombre << ' ' << c.ruta;
}

TEST(Herramientas, AnotherToolIsTakenOut)
{
    std::vector<std::string> lineas = {"A=1", "B=2", "A=3", "B", "=4"};
    EXPECT_FALSE(BorraHerramienta(lineas, "C"));
    EXPECT_TRUE(BorraHerramienta(lineas, "A"));
    EXPECT_EQ(lineas, (std::vector<std::string>{"B=2", "A=3", "B", "=4"}));
    EXPECT_TRUE(BorraHerramienta(lineas, ""));  // a line without "=" has no name
    EXPECT_EQ(lineas, (std::vector<std::string>{"B=2", "A=3", "=4"}));
}

}  // namespace
}  // namespace veldix
