"""What is shown of the library, screen by screen: stories told to a pretended process."""
