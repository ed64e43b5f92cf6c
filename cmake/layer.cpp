// SPDX-License-Identifier: MIT
// Linked with one whole layer and what lies below it; does nothing.
int main() {}
