#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "zorvectl/Home.h"

namespace zorve::pruebas {

/// zorvectl over a home of its own, whose sessions are what each test says.
class ZorvectlPlan : public testing::Test {
 protected:
  [[nodiscard]] dobles::Corrida zorvectl(std::vector<std::string> const& palabras) const {
    return home.zorvectl(palabras);
  }
  void conSesion(std::string_view id, std::string_view cwd) const {
    home.transcripcion(id, "{}\n");
    historia += prompt(id, "hola", cwd, 1'700'000'000'000);
    home.historia(historia);
  }
  void errorDeUso(std::vector<std::string> const& palabras, std::string const& parte) const {
    auto const corrida = zorvectl(palabras);
    EXPECT_EQ(corrida.codigo, 2);
    EXPECT_EQ(corrida.salida, "");
    EXPECT_THAT(corrida.error, testing::StartsWith("zorvectl: "));
    EXPECT_THAT(corrida.error, testing::HasSubstr(parte));
    EXPECT_EQ(corrida.error.find('\n'), corrida.error.size() - 1);
  }
  void falla(std::vector<std::string> const& palabras, std::string const& linea) const {
    auto const corrida = zorvectl(palabras);
    EXPECT_EQ(corrida.codigo, 1);
    EXPECT_EQ(corrida.salida, "");
    EXPECT_EQ(corrida.error, "zorvectl: " + linea + "\n");
  }

  Home home;
  mutable std::string historia;
};

class ZorvectlOpen : public ZorvectlPlan {};

}  // namespace zorve::pruebas
