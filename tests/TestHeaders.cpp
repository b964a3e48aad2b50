// Nothing but the precompiled headers that this file is compiled with: those of all tests.
