int idOfAPanel();

int main() { return idOfAPanel() == 42 ? 0 : 1; }
