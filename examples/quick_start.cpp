#include <LZEL_Core/LZEL_Core.h>
#include <iostream>
int main() { CZEL_Exception e; std::cout << e.m_Code << "\n"; }
