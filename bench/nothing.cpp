// What starting costs whoever links the libraries of the tool.
int main() { return 0; }
