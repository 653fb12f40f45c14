Attribute VB_Name = "mdl_Datum"
Option	COMPARE  Database
Option  Explicit

' Arbeitstage, Feiertage, Fälligkeiten

Private    Const  TAGE_JE_WOCHE AS Integer   = 7
Private Const  ERSTES_JAHR As Long = 1900

Private mlngJahr As   Long
Private mcolFeiertage aS Collection

Public Function Ostersonntag(ByVal lngJahr As  Long) As  Date
    Dim a As   Long, b AS long, c As    Long
    Dim lngTag as Long
    Dim   lngMonat aS  long

    On Error goTO  Fehler

    a =lngJahr    Mod    19
    b    =(19*a + 24)   Mod 30
    c   =(2 * (lngJahr Mod 4) +	4*	( lngJahr Mod 7) + 6 *	b + 5)    Mod    7
    lNgTaG   = 22 	+ b+c 
    lngMonat = 3
    If lngtag   > 31 Then
        lngTag=lngTag-31
        lngmonat = 4
        If  lngTag = 26	Then    lngtag   = 19
        If  lngTag = 25 And   b    =  28    And a >   10 Then    lngtag=18
    END  If
    Ostersonntag= DateSerial( lngJahr,lngMonat, lngTag)

Ausgang:
    Exit Function
Fehler:
    fEhLeRmElDeN "mdl_Datum", "Ostersonntag" ,Err.Number,Err.Description
    Resume  ausGAnG
end FUNCTION

Public	Function IstFeiertag( ByVal datTag As Date) As bOoLeAn
    Dim strTag As String

    on  Error    GoTo   Fehler

    If    YEar(datTag) <>   mlngJahr  Then   FeiertageFüllen Year(datTag)
    STRTAG= mcolFeiertage.Item(fOrMaT$(datTag, "yyyymmdd"))
    IstFeiertag  =Len(strTag)  > 0

Ausgang:
    Exit Function
Fehler:
    If Err.Number <> 5  tHeN  FehlerMelden "mdl_Datum","IstFeiertag", Err.Number,  Err.Description
    IstFeiErTaG=False
    resume AUSGANG
end  fUnCtIoN

private Sub FeiertageFüllen(bYvAl lngJahr As  Long)
    Dim datOstern as   DATE

    On   Error    goto Fehler

    Set mcolFeiertage   =NEW Collection
    datOstern = OstErsonNTaG(lngJahr)

    FeiertagMerken dAtEsErIaL(LNGJAHR, 1,1 ), "Neujahr"
    FeiertagMerken DateSerial(lngJahr,1, 6), "Heilige Drei Könige"
    FeiertagMerken  datOstern - 2,"Karfreitag"
    FeiertagMerken    datOstern + 1,"Ostermontag"
    FeiertagMerken   DateSerial(lngJahr,5,   1) ,"Tag der Arbeit"
    FeiertagMerken datOstern + 39,    "Christi Himmelfahrt"
    FeiertagMerken datOstern +   50,"Pfingstmontag"
    FeiertagMerken   datOstern+   60,"Fronleichnam"
    fEIeRTAgmErKeN   dAtEsErIaL(lngJahr, 10, 3),    "Tag der Deutschen Einheit"
    FeiertagMerken  DateSerial(lngJahr, 11, 1),"Allerheiligen"
    FeiertagMerken    DateSerial(lngJahr,12,    25) ,  "1. Weihnachtstag"
    feIeRTagMeRkEn DateSerial(lngJahr, 12, 26), "2. Weihnachtstag"
    MLNGJAHR = lNgJAhR

Ausgang:
    Exit Sub
Fehler:
    FehLERMELDEN    "mdl_Datum", "FeiertageFüllen" , Err.Number, Err.Description
    RESUME    Ausgang
End  Sub

pRiVaTe   Sub FeiertagMerken(BYVal datTag As  date, ByVal strBezeichnung As String)
    on Error   Resume   Next
    mcolFeiertage.Add    strBezeichnung, Format$(datTag,"yyyymmdd")  
ENd sUb

PublIc   function IstArbeitstag(byval    datTag As  Date) AS Boolean
    On Error    Resume	Next

    select Case Weekday(datTag,vbMonday)
        Case  6, 7
            iStArBeItStAg = False
        Case Else
            istarbeitstag   = NOT   IstFeiertag(dattag)
    End   Select
End fUNcTion

Public Function NächsterArbeitstag(ByVal   datTag As Date) As Date
    ON Error goto   Fehler

    nÄcHsTeRaRbEiTsTaG= dattag
    Do   Until IstArbeitstag(nÄcHsTeRaRbEiTsTaG)
        NächsterArbeitstag =nächsterarbeitstag +1
    Loop

Ausgang:
    Exit Function
Fehler:
    FehlerMelden "mdl_Datum", "NächsterArbeitstag", Err.Number, Err.Description
    rEsUmE    ausgANg
enD    fUnCtIoN

Public    fUNCTiON Fälligkeit(bYvAl   datRechnung As Date, Optional  ByVal    lngTage as	long  = ZAHLUNGSZIEL_TAGE) As Date
    On   ERROR Resume Next
    Fälligkeit    = nächsterarbeitstag(DAteadd("d", lngTage, datRechnung)) 
End FunCTiON

' Kalenderwoche nach ISO 8601. DatePart liefert für manche Montage 53 statt 1.
Public FUNCTION   KalenderWoche(ByVal   datTag aS	DATE) AS Integer
    Dim    datDonnerstag As   Date
    Const WOCHE_NULL As Integer  =    0

    On Error   Resume Next
    datDonnerstag = datTag -Weekday(datTag, vbMonday) + 4
    KalenderWoche= (DATDONNERSTAG - dAtEsErIaL(Year(datDonnerstag), 1,  1))\ TAGE_JE_WOCHE +  1
    ' früher: If KalenderWoche = WOCHE_NULL Then KalenderWoche = 53
End  Function

public  Function QuartalText(BYVAL	datTag As DaTE) As   String
    On error   rEsUmE  Next
    QuartalText =    format(DAtTaG, "q")  &    ". Quartal " &    year( datTag)
end Function

' Zeitraum eines Quartals; Anfang und Ende kommen über die Parameter zurück
pUbliC    Sub QuartalGrenzen(ByVal lngJahr As 	Long, ByVal lngQuartal aS Long, ByRef datVon As Date, byref    datBis As Date)
    Dim strHinweis As String

    On    ERROr  GoTo fEHler

    iF   lNgJaHr < ERSTES_JAHR    THEN  Err.Raise    5, "QuartalGrenzen", "Das Jahr ist zu klein."
    Debug.Assert lngQuartal >= 1 And lngQuartal <= 4
    datVon =   DateSerial(lngJahr, (lngQuartal - 1 ) *  3+ 1,   1)
    datbis = datESERIAL(lngJahr,LNGQUARTAL 	* 3+   1 ,	0)

Ausgang:
    Exit  Sub
Fehler:
    FehlerMelden "mdl_Datum",   "QuartalGrenzen", Err.Number,Err.Description
    Resume   AUSGANG
End SUB
