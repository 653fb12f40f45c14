Option Explicit

Private mlngAnzahl As Long
Private mstrName As String, mlngAnzahl As Integer
