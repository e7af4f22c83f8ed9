// A write transaction: everything in it happens or nothing does.
#pragma once

#include "core/store/motor.h"

namespace belvani {

// Not approved by its end, it is taken back.
class Islem {
 public:
  // Waits for other writers up to `enCok`; then MotorHatasi.
  explicit Islem(Motor& motor, std::chrono::milliseconds enCok = std::chrono::seconds(5)) : motor_(&motor) {
    motor.IslemBaslat(enCok);
  }
  ~Islem() {
    if (motor_ != nullptr) motor_->IslemGeriAl();
  }
  Islem(const Islem&) = delete;
  Islem& operator=(const Islem&) = delete;

  void Onayla() {
    motor_->IslemOnayla();
    motor_ = nullptr;
  }

 private:
  Motor* motor_;
};

// Part of the transaction that is open already, else one of its own.
class KatilanIslem {
 public:
  explicit KatilanIslem(Motor& motor) {
    if (!motor.IslemdeMi()) kendi_.emplace(motor);
  }
  void Onayla() {
    if (kendi_) kendi_->Onayla();
  }

 private:
  std::optional<Islem> kendi_;
};

// A part of the open transaction that may fail while the rest goes on. Not released by its end, it is taken back;
// outside a transaction there is nothing to hold.
class AraNokta {
 public:
  explicit AraNokta(Motor& motor) : motor_(motor.IslemdeMi() ? &motor : nullptr) {
    if (motor_ != nullptr) motor_->AraNoktaKoy();
  }
  ~AraNokta() {
    if (motor_ != nullptr) motor_->AraNoktayaDon();
  }
  AraNokta(const AraNokta&) = delete;
  AraNokta& operator=(const AraNokta&) = delete;

  void Birak() {
    if (motor_ != nullptr) motor_->AraNoktaBirak();
    motor_ = nullptr;
  }

 private:
  Motor* motor_;
};

}  // namespace belvani
