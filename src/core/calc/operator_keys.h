#pragma once
// The operator keys of the calculator. Plus, minus, multiply and divide only
// choose the operation and clear the readout for the next entry; Equal,
// Square and Square root hand the readout to the engine. Every key leaves the
// focus on Equal, so that Enter completes an operation.

namespace brenko {

struct App;

void Plus_Click(App& app);
void Minus_Click(App& app);
void Multiply_Click(App& app);
void Divide_Click(App& app);
void Equal_Click(App& app);
void Square_Click(App& app);
void SquareRoot_Click(App& app);

}  // namespace brenko
